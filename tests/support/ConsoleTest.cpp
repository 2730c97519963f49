#include "support/Console.h"

#include <array>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "RedirectedStream.h"

namespace {

TEST(Console, MessagesAreCountedByTheirBeginningOnTheConsoleAlone) {
    const int errors = m_nErrorCount;
    const int warnings = m_nWarningCount;
    const CKTRedirectedStream console(std::cerr);
    for (const char* text : {"Error : ", "error :x", "Internal Error : ", "WARNING : ", "Error: ",
                             "\nError : ", "Fatal Error : ", "Internal", "Warning", ""}) {
        std::cerr << text;
    }
    std::ostringstream other;
    other << "Error : ";
    std::ostream detached(nullptr);
    detached << "Error : ";
    EXPECT_EQ(m_nErrorCount - errors, 3);
    EXPECT_EQ(m_nWarningCount - warnings, 1);
}

TEST(Console, TheExitStatusIsNeverZeroForARunWithMessages) {
    const std::vector<std::array<int, 3>> rows = {{0, 0, 0},      {0, 1, 1},      {1, 0, 1},
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

// The words that announce some work are on the terminal before the work begins.
TEST(Console, AMessageOnStandardOutputIsNotHeldBack) {
    struct CKTHeldText : std::stringbuf {
        int sync() override {
            shown = str();
            return 0;
        }
        std::string shown;
    };
    DisplayHeader();
    CKTHeldText device;
    std::streambuf* const saved = std::cout.rdbuf(&device);
    std::cout << "Checking a.xsd\n";
    std::cout.rdbuf(saved);
    EXPECT_EQ(device.shown, "Checking a.xsd\n");
}

}  // namespace
