#ifndef DORVEX_SUPPORT_FILES_H
#define DORVEX_SUPPORT_FILES_H

#include <cstdio>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

/// Says whether the file `name` exists and is to be kept. With `prompt`, an existing file is
/// reported as a warning and the user is asked on standard error whether to overwrite it; the end
/// of standard input means no. An empty name is an error and counts as kept. False: absent, or to
/// be overwritten.
bool FileExists(const std::string& name, bool prompt);

/// Says whether `name` can be opened and read: no directory, and nothing that permissions forbid.
bool IsReadable(const std::string& name);

/// Copies `from` to `to` line by line, each line ended by a line feed, so that a source that ends
/// with one gets an empty line more. Returns false after an error line when either file fails: a
/// line of its own when `to` cannot be written completely.
bool CopyFileToFile(const std::string& from, const std::string& to);

/// Returns a bare name in the current directory that is free for every extension of the
/// blank-separated list. The name is reserved: the file with the last extension is created, empty.
/// Returns an empty name after an error line when the directory cannot be written.
std::string GetTemporaryFilename(const char* extensions);

/// Returns `name` without its double quotes, enclosed in double quotes when it holds a blank;
/// `trace` (may be null) receives a line after each of the two steps.
std::string ProcessSpaceyFilename(const std::string& name, std::FILE* trace);

/// An output file that standard output is lent to while the object lives. A file that cannot be
/// opened leaves standard output as it is.
class CKTOutputFile {
public:
    /// Opens `name` for writing, truncating it; an empty name opens nothing.
    explicit CKTOutputFile(const std::string& name);
    ~CKTOutputFile();
    CKTOutputFile(const CKTOutputFile&) = delete;
    CKTOutputFile& operator=(const CKTOutputFile&) = delete;

    [[nodiscard]] bool IsOpen() const { return m_bRedirected; }

    /// Gives standard output back and closes the file. Returns whether everything was written, to
    /// the file or, when it is not open, to the console. A silenced console counts as written.
    bool Close();

private:
    std::vector<char> m_Buffer;
    std::string m_sName;
    std::ofstream m_File;
    bool m_bRedirected = false;
    std::streambuf* m_pSavedBuffer = nullptr;
    std::ostream* m_pSavedTie = nullptr;
};

#endif
