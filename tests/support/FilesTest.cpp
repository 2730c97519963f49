#include "support/Files.h"

#include <array>
#include <cstdio>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RedirectedStream.h"
#include "ScratchFiles.h"

namespace {

class FilesTest : public testing::Test {
private:
    const CKTWorkingDirectory m_Directory;
};

TEST_F(FilesTest, ACopyEndsEveryLineAndKeepsItsBytes) {
    const std::string longLine(3000, 'x');
    const std::string limit(1024, 'y');
    const std::string zeros("a\0b\0", 4);
    struct Row {
        std::string source;
        std::string copy;
    };
    const std::vector<Row> rows = {
        {"a\nb\n", "a\nb\n\n"},
        {"a\nb", "a\nb\n"},
        {"", "\n"},
        {"a\r\n \xff", "a\r\n \xff\n"},
        {zeros + "\n" + zeros, zeros + "\n" + zeros + "\n"},
        {longLine + "\nb\n" + longLine, longLine + "\nb\n" + longLine + "\n"},
        {limit + "\n" + limit.substr(1) + "\nb", limit + "\n" + limit.substr(1) + "\nb\n"},
    };
    for (const auto& row : rows) {
        WriteFile("from", row.source);
        WriteFile("to", std::string(9000, 'z'));
        const CKTRedirectedStream output(std::cout);
        EXPECT_TRUE(CopyFileToFile("from", "to"));
        EXPECT_EQ(ReadTree("."), (FileTree{{"from", row.source}, {"to", row.copy}}));
        EXPECT_EQ(output.Text(), "");
    }
}

TEST_F(FilesTest, ACopyThatIsNotCompleteIsAnError) {
    WriteFile("from", "a\n");
    WriteFile("large", std::string(1 << 20, 'x') + "\n");
    const std::vector<std::array<const char*, 2>> rows = {
        {"missing", "to"},     {"from", "missing/to"}, {".", "to"}, {"", "to"}, {"from", ""},
        {"from", "/dev/full"}, {"large", "/dev/full"},
    };
    for (const auto& [from, to] : rows) {
        const bool full = std::string(to) == "/dev/full";
        const CKTRedirectedConsole console;
        EXPECT_FALSE(CopyFileToFile(from, to)) << from << " to " << to;
        EXPECT_EQ(console.Output(), full ? std::string()
                                         : std::string("Error : Unable to copy file contents of ") +
                                               from + " to " + to + "\n");
        EXPECT_EQ(console.Errors(),
                  full ? "Error : Unable to write output file \"/dev/full\"\n" : "");
        EXPECT_EQ(console.Counted(), 1);
    }
}

TEST_F(FilesTest, ATemporaryNameIsFreeForEveryExtensionAndReservedByTheLast) {
    FileTree reserved;
    std::string last;
    for (const char* extensions : {".xml .cbl", "xml cbl", "  .xml   .cbl ", ".cbl"}) {
        const std::string stem = GetTemporaryFilename(extensions);
        EXPECT_NE(stem, last);
        EXPECT_FALSE(stem.empty() || stem.ends_with('.')) << stem;
        EXPECT_EQ(stem.find_first_of("/ "), std::string::npos) << stem;
        EXPECT_FALSE(FileExists(stem + ".xml", false)) << stem;
        reserved[stem + ".cbl"] = "";
        EXPECT_EQ(ReadTree("."), reserved);
        last = stem;
    }
}

TEST_F(FilesTest, AnUnusableNameCountsAsKept) {
    for (const bool prompt : {false, true}) {
        const CKTRedirectedConsole console;
        EXPECT_TRUE(FileExists("", prompt));
        EXPECT_EQ(console.Output(), "Error : Invalid Filename.  Unable to create \"\"\n");
        EXPECT_EQ(console.Errors(), "");
        EXPECT_EQ(console.Counted(), 1);
    }
    WriteFile("here", "");
    EXPECT_TRUE(FileExists("here", false));
    EXPECT_FALSE(FileExists("absent", true));
}

TEST_F(FilesTest, FileNamesWithBlanksAreQuotedOnce) {
    EXPECT_EQ(ProcessSpaceyFilename("my prog.cbl", nullptr), "\"my prog.cbl\"");
    EXPECT_EQ(ProcessSpaceyFilename("\"a.cbl\"", nullptr), "a.cbl");
    EXPECT_EQ(ProcessSpaceyFilename("\"\xff \xe9\"", nullptr), "\"\xff \xe9\"");
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> trace(std::fopen("trace", "w"),
                                                                &std::fclose);
    ASSERT_NE(trace, nullptr);
    EXPECT_EQ(ProcessSpaceyFilename("\"a \"\"b\"", trace.get()), "\"a b\"");
    std::fflush(trace.get());
    EXPECT_EQ(ReadFile("trace"), "Removed Quotes : a b\nFinal Filename : \"a b\"\n");
}

}  // namespace
