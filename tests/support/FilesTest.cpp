#include "support/Files.h"

#include <filesystem>
#include <iostream>
#include <string>

#include <gtest/gtest.h>

#include "CaseFiles.h"
#include "RedirectedStream.h"
#include "support/Console.h"

namespace {

class FilesTest : public testing::Test {
protected:
    void SetUp() override { std::filesystem::current_path(m_scratch.Path()); }
    void TearDown() override { std::filesystem::current_path(m_start); }

private:
    const std::filesystem::path m_start = std::filesystem::current_path();
    const casetest::ScratchDirectory m_scratch;
};

TEST_F(FilesTest, ACopyEndsEveryLineAndKeepsItsBytes) {
    const std::string longLine(3000, 'x');
    const std::string limit(1024, 'y');
    const std::string zeros("a\0b\0", 4);
    const struct {
        std::string source;
        std::string copy;
    } rows[] = {
        {"a\nb\n", "a\nb\n\n"},
        {"a\nb", "a\nb\n"},
        {"", "\n"},
        {"a\r\n \xff", "a\r\n \xff\n"},
        {zeros + "\n" + zeros, zeros + "\n" + zeros + "\n"},
        {longLine + "\nb\n" + longLine, longLine + "\nb\n" + longLine + "\n"},
        {limit + "\n" + limit.substr(1) + "\nb", limit + "\n" + limit.substr(1) + "\nb\n"},
    };
    for (const auto& row : rows) {
        casetest::WriteFile("from", row.source);
        casetest::WriteFile("to", std::string(9000, 'z'));
        const RedirectedStream output(std::cout);
        EXPECT_TRUE(CopyFileToFile("from", "to"));
        EXPECT_EQ(casetest::ReadTree("."),
                  (casetest::FileTree{{"from", row.source}, {"to", row.copy}}));
        EXPECT_EQ(output.Text(), "");
    }
}

TEST_F(FilesTest, ACopyThatIsNotCompleteIsAnError) {
    casetest::WriteFile("from", "a\n");
    casetest::WriteFile("large", std::string(1 << 20, 'x') + "\n");
    const char* const rows[][2] = {
        {"missing", "to"},     {"from", "missing/to"}, {".", "to"}, {"", "to"}, {"from", ""},
        {"from", "/dev/full"}, {"large", "/dev/full"},
    };
    for (const auto& [from, to] : rows) {
        const bool full = std::string(to) == "/dev/full";
        const int before = m_nErrorCount;
        const RedirectedStream output(std::cout);
        const RedirectedStream errors(std::cerr);
        EXPECT_FALSE(CopyFileToFile(from, to)) << from << " to " << to;
        EXPECT_EQ(output.Text(), full ? std::string()
                                      : std::string("Error : Unable to copy file contents of ") +
                                            from + " to " + to + "\n");
        EXPECT_EQ(errors.Text(), full ? "Error : Unable to write output file \"/dev/full\"\n" : "");
        EXPECT_EQ(m_nErrorCount - before, 1);
    }
}

TEST_F(FilesTest, ATemporaryNameIsFreeForEveryExtensionAndReservedByTheLast) {
    casetest::FileTree reserved;
    std::string last;
    for (const char* extensions : {".xml .cbl", "xml cbl", "  .xml   .cbl ", ".cbl"}) {
        const std::string stem = GetTemporaryFilename(extensions);
        EXPECT_NE(stem, last);
        EXPECT_FALSE(stem.empty() || stem.ends_with('.')) << stem;
        EXPECT_EQ(stem.find_first_of("/ "), std::string::npos) << stem;
        EXPECT_FALSE(FileExists(stem + ".xml", false)) << stem;
        reserved[stem + ".cbl"] = "";
        EXPECT_EQ(casetest::ReadTree("."), reserved);
        last = stem;
    }
}

TEST_F(FilesTest, AnUnusableNameCountsAsKept) {
    for (const bool prompt : {false, true}) {
        const int before = m_nErrorCount;
        const RedirectedStream output(std::cout);
        const RedirectedStream errors(std::cerr);
        EXPECT_TRUE(FileExists("", prompt));
        EXPECT_EQ(output.Text(), "Error : Invalid Filename.  Unable to create \"\"\n");
        EXPECT_EQ(errors.Text(), "");
        EXPECT_EQ(m_nErrorCount - before, 1);
    }
    casetest::WriteFile("here", "");
    EXPECT_TRUE(FileExists("here", false));
    EXPECT_FALSE(FileExists("absent", true));
}

TEST(Console, TheExitStatusIsNeverZeroForARunWithMessages) {
    const int rows[][3] = {{0, 0, 0},      {0, 1, 1},      {1, 0, 1},
                           {200, 54, 254}, {200, 55, 255}, {128, 128, 255},
                           {200, 57, 1},   {512, 0, 255},  {0, 769, 1}};
    const int errors = m_nErrorCount;
    const int warnings = m_nWarningCount;
    for (const auto& [errorCount, warningCount, expected] : rows) {
        m_nErrorCount = errorCount;
        m_nWarningCount = warningCount;
        EXPECT_EQ(ExitStatus(), expected) << errorCount << " and " << warningCount;
    }
    m_nErrorCount = errors;
    m_nWarningCount = warnings;
}

}  // namespace
