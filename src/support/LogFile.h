#ifndef DORVEX_SUPPORT_LOGFILE_H
#define DORVEX_SUPPORT_LOGFILE_H

#include <streambuf>
#include <string>
#include <string_view>

/// A log that several streams write to. When it cannot be written any further, that is reported
/// once, and all that follows goes to the consoles of the streams.
class CKTLogFile {
public:
    CKTLogFile() = default;
    ~CKTLogFile();
    CKTLogFile(const CKTLogFile&) = delete;
    CKTLogFile& operator=(const CKTLogFile&) = delete;

    /// Creates the file or empties it. Returns whether it can be written.
    bool Open(const char* name);
    [[nodiscard]] bool IsOpen() const { return m_nFile >= 0; }

    /// Appends `text`, unbuffered; what the file does not take goes to `console`. The first time
    /// that happens, the file is reported as an output that cannot be written.
    void Write(std::string_view text, std::streambuf& console);

    /// Closes the file, which may be closed already. Returns false when the system only now says
    /// that something is missing; after an earlier failure, which was reported, it returns true.
    bool Close();

private:
    int m_nFile = -1;
    bool m_bFailed = false;
    std::string m_sName;
};

/// What a stream writes to in place of its console while the log is open. Keeps text until the
/// stream is flushed; a buffer of one stream and that of another share nothing but the file.
class CKTLogBuffer : public std::streambuf {
public:
    /// Borrows both, which outlive it. Writes nothing when it ends: flush it first.
    CKTLogBuffer(CKTLogFile& log, std::streambuf* console) : m_Log(log), m_pConsole(console) {}

    /// The buffer that the stream had before, to be given back to it.
    [[nodiscard]] std::streambuf* Console() const { return m_pConsole; }

protected:
    /// None of them fails: text that the log does not take is shown on the console.
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

private:
    CKTLogFile& m_Log;
    std::streambuf* m_pConsole;
    std::string m_sPending;
};

#endif
