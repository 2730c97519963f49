#ifndef DORVEX_TESTS_SUPPORT_REDIRECTEDSTREAM_H
#define DORVEX_TESTS_SUPPORT_REDIRECTEDSTREAM_H

#include <iostream>
#include <sstream>
#include <string>

#include "support/Console.h"

/// Collects what is written to a stream as long as it lives; the banner is never part of it.
class CKTRedirectedStream {
public:
    explicit CKTRedirectedStream(std::ostream& stream) : m_Stream(stream) {
        DisplayHeader();
        m_pSaved = stream.rdbuf(m_Text.rdbuf());
    }
    ~CKTRedirectedStream() { m_Stream.rdbuf(m_pSaved); }
    CKTRedirectedStream(const CKTRedirectedStream&) = delete;
    CKTRedirectedStream& operator=(const CKTRedirectedStream&) = delete;

    [[nodiscard]] std::string Text() const { return m_Text.str(); }

private:
    std::ostringstream m_Text;
    std::ostream& m_Stream;
    std::streambuf* m_pSaved = nullptr;
};

/// Collects both streams of the console, and counts the errors meanwhile.
class CKTRedirectedConsole {
public:
    [[nodiscard]] std::string Output() const { return m_Output.Text(); }
    [[nodiscard]] std::string Errors() const { return m_Errors.Text(); }
    [[nodiscard]] int Counted() const { return m_nErrorCount - m_nBefore; }

private:
    const CKTRedirectedStream m_Output{std::cout};
    const CKTRedirectedStream m_Errors{std::cerr};
    const int m_nBefore = m_nErrorCount;
};

#endif
