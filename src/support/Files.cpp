// Files as the runs need them: is an output in the way and may it go, is an input there, a plain
// copy, a free name, and an output that standard output is lent to. Names are bytes and go to the
// system as they are given. The copy ends each line with a line feed and so adds an empty line to a
// source that ends with one; that is wanted. A file is opened, not looked up, to find out whether
// it is there, so one that must not be read counts as absent.

#include "support/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <random>
#include <sstream>
#include <vector>

#include "support/Complaints.h"
#include "support/Console.h"
#include "support/FilesUsed.h"
#include "support/Limits.h"
#include "support/Progress.h"

namespace {

/// Outputs are written in many short pieces.
constexpr std::size_t kOutputBufferSize = 65536;

/// Reads one line of at most the answer buffer's size from standard input and drops the rest of a
/// longer one. Returns false at the end of the input, which a line without end stands for as well.
bool ReadAnswer(std::string& answer) {
    std::array<char, kMaxAnswerSize> buffer{};
    std::cin.getline(buffer.data(), buffer.size());
    answer = buffer.data();
    // A last line without a line feed is an answer like any other.
    if (std::cin.eof() && answer.empty()) {
        return false;
    }
    // Too long for the buffer, so no answer; its rest must not be taken for the next one. An input
    // that never ends a line ends the question instead.
    if (std::cin.fail() && !std::cin.bad()) {
        std::cin.clear();
        std::cin.ignore(kMaxAnswerRest, '\n');
        return std::cin.gcount() < kMaxAnswerRest;
    }
    return !std::cin.bad();
}

bool AskToKeep(const std::string& name) {
    // The console is lent for the first question only: a repeated one goes where the errors go.
    auto console = std::make_unique<CKTConsoleForErrors>();
    std::cerr << "\n";
    Report<SupportMessage::FileExists>(name);
    for (;;) {
        std::cerr << MessageText<SupportMessage::Overwrite>(name).c_str();
        std::string answer;
        const bool more = ReadAnswer(answer);
        // The key that ended the answer has ended the line of the question on the terminal too.
        if (more && ::isatty(STDIN_FILENO) != 0) {
            ReportLineTyped();
        }
        console.reset();
        if (!more || answer == "N" || answer == "n") {
            return true;
        }
        if (answer == "Y" || answer == "y") {
            return false;
        }
    }
}

std::string RandomStem() {
    static constexpr std::string_view kLetters =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device device;
    std::uniform_int_distribution<std::size_t> letter(0, kLetters.size() - 1);
    std::string stem = "file";
    for (int i = 0; i < 6; ++i) {
        stem += kLetters[letter(device)];
    }
    return stem;
}

}  // namespace

bool FileExists(const std::string& name, bool prompt) {
    if (name.empty()) {
        Report<SupportMessage::NoFileName>(name);
        return true;
    }
    // Without blocking, so that a pipe that nobody writes to does not hold the program up.
    const int file = ::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return false;
    }
    if (::close(file) != 0) {
        Report<SupportMessage::CannotClose>(name);
        // main is not reached again, which would do this.
        RestoreStreams();
        std::exit(1);
    }
    return !prompt || AskToKeep(name);
}

bool IsReadable(const std::string& name) {
    // Without opening it, which would let the writer of a pipe believe that its reader has come.
    struct stat status {};
    return ::stat(name.c_str(), &status) == 0 && !S_ISDIR(status.st_mode) &&
           ::access(name.c_str(), R_OK) == 0;
}

bool CopyFileToFile(const std::string& from, const std::string& to) {
    std::ifstream input(from, std::ios::binary);
    std::ofstream output;
    // A source that cannot be read must not empty the file it was to go to.
    if (input.is_open()) {
        output.open(to, std::ios::binary | std::ios::trunc);
    }
    bool const writable = output.is_open();
    std::string line;
    while (writable && output.good() && !input.eof()) {
        std::getline(input, line);
        // A read error. At the end of the input, getline fails too, and its empty line is copied.
        if (!input.eof() && input.fail()) {
            break;
        }
        output << line << '\n';
    }
    // What is still buffered may be what the disk does not take.
    output.close();
    if (writable && output.fail()) {
        Report<SupportMessage::UnwritableOutput>(to);
        return false;
    }
    if (!writable || !input.eof() || input.bad()) {
        Report<SupportMessage::CannotCopy>(from, to);
        return false;
    }
    return true;
}

std::string GetTemporaryFilename(const char* extensions) {
    std::vector<std::string> endings;
    std::istringstream list(extensions);
    for (std::string ending; list >> ending;) {
        endings.push_back(ending.starts_with('.') ? ending : "." + ending);
    }
    for (;;) {
        std::string stem = RandomStem();
        const bool taken = std::any_of(endings.begin(), endings.end(), [&](const std::string& e) {
            return FileExists(stem + e, false);
        });
        if (taken) {
            continue;
        }
        std::string const reserved = stem + (endings.empty() ? "" : endings.back());
        // Created only if it is not there, so that two runs in one directory never share a name. Of
        // the others it is enough that they are free: the compiler makes them.
        const int file = ::open(reserved.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file >= 0) {
            ::close(file);
            return stem;
        }
        // Somebody was quicker: try another name. Anything else would go on for ever.
        if (errno != EEXIST) {
            Report<SupportMessage::UnwritableOutput>(reserved);
            return {};
        }
    }
}

// Works on bytes, since the locale need not be able to decode a file name; in no encoding of a
// locale is a blank or a quotation mark a part of another character.
std::string ProcessSpaceyFilename(const std::string& name, std::FILE* trace) {
    std::string result = name;
    std::erase(result, '"');
    if (trace != nullptr) {
        std::fprintf(trace, "Removed Quotes : %s\n", result.c_str());
    }
    if (result.find(' ') != std::string::npos) {
        result = '"' + result + '"';
    }
    if (trace != nullptr) {
        std::fprintf(trace, "Final Filename : %s\n", result.c_str());
    }
    return result;
}

CKTOutputFile::CKTOutputFile(const std::string& name) : m_Buffer(kOutputBufferSize), m_sName(name) {
    // Before the file is opened; later the library takes no buffer.
    m_File.rdbuf()->pubsetbuf(m_Buffer.data(), static_cast<std::streamsize>(m_Buffer.size()));
    if (name.empty()) {
        return;
    }
    std::cout.flush();
    m_File.open(name, std::ios::binary | std::ios::trunc);
    if (m_File.is_open()) {
        m_pSavedBuffer = std::cout.rdbuf(m_File.rdbuf());
        m_bRedirected = true;
        // Otherwise each message on standard error would flush the file.
        m_pSavedTie = std::cerr.tie(nullptr);
    } else {
        // Without a message: the caller has words of its own for it.
        NoteOutput(name, false);
    }
}

CKTOutputFile::~CKTOutputFile() {
    Close();
}

bool CKTOutputFile::Close() {
    std::cout.flush();
    // Asked before the buffer is exchanged, which clears the state of the stream, so that a full
    // disk does not silence the console.
    bool written = std::cout.good() || std::cout.rdbuf() == nullptr;
    if (m_bRedirected) {
        std::cout.rdbuf(m_pSavedBuffer);
        std::cerr.tie(m_pSavedTie);
        m_bRedirected = false;
        m_File.close();
        written = written && !m_File.fail();
        NoteOutput(m_sName, written);
    }
    return written;
}
