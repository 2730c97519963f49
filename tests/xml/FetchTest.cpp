#include "xml/Fetch.h"

#include <chrono>
#include <cstdlib>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "LoopbackServer.h"

namespace {

using namespace std::chrono_literals;

class FetchTest : public testing::Test {
protected:
    void SetUp() override { ::setenv("no_proxy", "*", 1); }

    CKTLoopbackServer m_Server{{{"a", "some text."}}};
};

TEST_F(FetchTest, AnAnswerIsWholeOrNothing) {
    struct Row {
        const char* path;
        std::size_t most;
        FetchEnd end;
        std::string bytes;
    };
    const std::vector<Row> rows = {
        {"a", 10, FetchEnd::Complete, "some text."},      {"a", 9, FetchEnd::Failed, ""},
        {"slow/a", 10, FetchEnd::Complete, "some text."},  // longer than it may be silent
        {"silent/a", 10, FetchEnd::Failed, ""},           {"cut/a", 10, FetchEnd::CutOff, ""},
        {"missing", 1000, FetchEnd::Failed, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.path) + " " + std::to_string(row.most));
        const auto start = std::chrono::steady_clock::now();
        const Fetched fetched = Fetch(m_Server.Url(row.path), {1s, row.most});
        EXPECT_EQ(fetched.end, row.end);
        EXPECT_EQ(fetched.bytes, row.bytes);
        EXPECT_LT(std::chrono::steady_clock::now() - start, 20s);
    }
}

TEST_F(FetchTest, NothingIsAskedForTwice) {
    for (const char* path : {"moved/a", "a", "moved/moved/a", "moved/a"}) {
        EXPECT_EQ(FetchOnce(m_Server.Url(path)).bytes, "some text.") << path;
    }
    for (const char* path : {"missing", "missing", "moved/missing", "file/etc/passwd"}) {
        EXPECT_EQ(FetchOnce(m_Server.Url(path)).end, FetchEnd::Failed) << path;
    }
    EXPECT_EQ(m_Server.Requests(),
              (std::vector<std::string>{"moved/a", "a", "moved/moved/a", "missing", "moved/missing",
                                        "file/etc/passwd"}));
}

TEST_F(FetchTest, RedirectionsAreFollowedSixTimes) {
    std::string path = "a";
    for (int i = 0; i < 6; ++i) {
        path.insert(0, "moved/");
    }
    EXPECT_EQ(FetchOnce(m_Server.Url("moved/" + path)).end, FetchEnd::Failed);
    EXPECT_EQ(FetchOnce(m_Server.Url(path)).bytes, "some text.");
}

TEST_F(FetchTest, AServerThatIsNotThereIsNotConnected) {
    std::string url;
    {
        const CKTLoopbackServer gone({});
        url = gone.Url("a");
    }
    EXPECT_EQ(Fetch(url, {}).end, FetchEnd::NotConnected);
}

}  // namespace
