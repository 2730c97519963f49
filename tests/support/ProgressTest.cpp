#include "support/Progress.h"

#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <iostream>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

CKTProgressLine::TimePoint g_Now;

CKTProgressLine::TimePoint Now() {
    return g_Now;
}

/// A terminal that shows what it is sent, byte by byte.
class CKTTerminal {
public:
    explicit CKTTerminal(unsigned short columns) {
        termios settings{};
        ::cfmakeraw(&settings);
        winsize size{};
        size.ws_col = columns;
        std::array<char, 64> name{};
        if (::openpty(&m_nScreen, &m_nLine, name.data(), &settings, &size) == 0) {
            m_sName = name.data();
        }
    }
    ~CKTTerminal() {
        ::close(m_nScreen);
        ::close(m_nLine);
    }
    CKTTerminal(const CKTTerminal&) = delete;
    CKTTerminal& operator=(const CKTTerminal&) = delete;

    [[nodiscard]] int Line() const { return m_nLine; }
    [[nodiscard]] const std::string& Name() const { return m_sName; }

    /// What was sent since the last call. The kernel passes it on in its own time, so a mark behind
    /// it is waited for.
    std::string Shown() {
        constexpr char kMark = '\x01';
        std::string text;
        char next = 0;
        if (::write(m_nLine, &kMark, 1) == 1) {
            while (::read(m_nScreen, &next, 1) == 1 && next != kMark) {
                text += next;
            }
        }
        return text;
    }

private:
    int m_nScreen = -1;
    int m_nLine = -1;
    std::string m_sName;
};

std::string Wiped(const std::string& shown) {
    return '\r' + std::string(shown.size(), ' ') + '\r';
}

TEST(Progress, ALineIsShownAfterTwoSecondsAndRenewedTwiceASecond) {
    CKTTerminal terminal(80);
    g_Now = {};
    {
        CKTProgressLine line(terminal.Line(), Now);
        g_Now += 2s;
        line.AddBytes(100000);
        line.AddItems(1000);
        EXPECT_EQ(terminal.Shown(), "");
        g_Now += 1ms;
        line.AddItems(1);
        EXPECT_EQ(terminal.Shown(), "") << "the clock is not read for every item";
        line.AddItems(99);
        EXPECT_EQ(terminal.Shown(), "100000 bytes read, 1100 items written");
        g_Now += 500ms;
        line.AddBytes(20000);
        EXPECT_EQ(terminal.Shown(), "");
        g_Now += 1ms;
        line.AddBytes(20000);
        EXPECT_EQ(terminal.Shown(), Wiped("100000 bytes read, 1100 items written") +
                                        "140000 bytes read, 1100 items written");
        line.RestartBytes();
        g_Now += 1s;
        line.AddBytes(5);
        EXPECT_EQ(terminal.Shown(), Wiped("140000 bytes read, 1100 items written") +
                                        "5 bytes read, 1100 items written");
    }
    EXPECT_EQ(terminal.Shown(), Wiped("5 bytes read, 1100 items written"));
}

TEST(Progress, TheLineIsWipedBeforeAnythingElseIsWritten) {
    CKTTerminal terminal(80);
    std::ofstream output(terminal.Name());
    std::ofstream errors(terminal.Name());
    const std::streambuf* own = output.std::ostream::rdbuf();
    {
        g_Now = {};
        CKTProgressLine line(terminal.Line(), Now);
        line.Watch(output);
        line.Watch(errors);
        const auto later = [&] {
            g_Now += 3s;
            line.AddBytes(20000);
        };
        output << "Checking\n";
        later();
        EXPECT_EQ(terminal.Shown(), "Checking\n20000 bytes read")
            << "what was written stands above";
        errors << "Error\n" << std::flush;
        EXPECT_EQ(terminal.Shown(), Wiped("20000 bytes read") + "Error\n");
        later();
        EXPECT_EQ(terminal.Shown(), "40000 bytes read");
        output.put('a');
        output.flush();
        EXPECT_EQ(terminal.Shown(), Wiped("40000 bytes read") + "a");
        later();
        EXPECT_EQ(terminal.Shown(), "") << "the line of another is not finished";
        line.EndLine();
        later();
        EXPECT_EQ(terminal.Shown(), "80000 bytes read");
        line.Stop();
        later();
        EXPECT_EQ(terminal.Shown(), Wiped("80000 bytes read"));
    }
    EXPECT_EQ(output.std::ostream::rdbuf(), own);
}

TEST(Progress, TheLineIsNoWiderThanTheTerminal) {
    CKTTerminal terminal(12);
    g_Now = {};
    CKTProgressLine line(terminal.Line(), Now);
    g_Now += 3s;
    line.AddBytes(123456);
    EXPECT_EQ(terminal.Shown(), "123456 byte");
}

}  // namespace
