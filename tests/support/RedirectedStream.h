#ifndef DORVEX_TESTS_SUPPORT_REDIRECTEDSTREAM_H
#define DORVEX_TESTS_SUPPORT_REDIRECTEDSTREAM_H

#include <ostream>
#include <sstream>
#include <string>

#include "support/Console.h"

// Collects what is written to a stream as long as it lives; the banner is never part of it.
class RedirectedStream {
public:
    explicit RedirectedStream(std::ostream& stream) : m_stream(stream) {
        DisplayHeader();
        m_saved = stream.rdbuf(m_text.rdbuf());
    }
    ~RedirectedStream() { m_stream.rdbuf(m_saved); }
    RedirectedStream(const RedirectedStream&) = delete;
    RedirectedStream& operator=(const RedirectedStream&) = delete;

    [[nodiscard]] std::string Text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::ostream& m_stream;
    std::streambuf* m_saved = nullptr;
};

#endif
