#include "driver/CommandLine.h"

#include <clocale>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RedirectedStream.h"

namespace {

TEST(CommandLine, AnOptionTakesTheRestOfItsArgumentOrTheNextOne) {
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    const std::string incomplete = "Error : Ignoring incomplete command-line option \"-c\"\n";
    struct Row {
        std::vector<std::string> arguments;
        std::string value;
        int index;
        std::string output;
        std::string errors;
    };
    const std::vector<Row> rows = {
        {{"dorvex", "-Cout.cpy", "a.cbl"}, "out.cpy", 1, "", ""},
        {{"dorvex", "-c", "-log", "a.cbl"}, "-log", 2, "", ""},
        {{"dorvex", "-C", ""}, "", 2, "", ""},
        {{"dorvex", "-c"}, "old", 2, incomplete, ""},
        {{"dorvex", "-C\xc3\xa9t\xc3\xa9.cpy"}, "\xc3\xa9t\xc3\xa9.cpy", 1, "", ""},
        {{"dorvex", "-c", "\xff.cpy"}, "\xff.cpy", 2, "", ""},
        {{"dorvex", "-c\xff", "a.cbl"}, "\xff", 1, "", ""},
    };
    for (auto row : rows) {
        std::string value = "old";
        std::vector<char*> argv;
        for (std::string& argument : row.arguments) {
            argv.push_back(argument.data());
        }
        const CKTRedirectedConsole console;
        EXPECT_EQ(
            ProcessCmdLineNameValue(static_cast<int>(argv.size()), argv.data(), 1, "-C", value),
            row.index)
            << row.arguments[1];
        EXPECT_EQ(value, row.value) << row.arguments[1];
        EXPECT_EQ(console.Output(), row.output) << row.arguments[1];
        EXPECT_EQ(console.Errors(), row.errors) << row.arguments[1];
        EXPECT_EQ(console.Counted(), row.output.empty() && row.errors.empty() ? 0 : 1);
    }
}

}  // namespace
