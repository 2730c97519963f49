// kcomp: reads the data descriptions of a COBOL source and writes its data dictionary, where the
// compiler is not at hand. It checks what it reads and compiles nothing. The source becomes words
// with all copy files in place, the words become programs with their records, and those become the
// dictionary. It is written if it is asked for and nothing is wrong; the exit status tells the
// latter.

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kcomp/CopyLibrary.h"
#include "kcomp/DictionaryWriter.h"
#include "kcomp/LeftOut.h"
#include "kcomp/ProgramReader.h"
#include "kcomp/Report.h"
#include "kcomp/SourceReader.h"
#include "kcomp/Text.h"

namespace {

struct Arguments {
    std::string source;
    std::string directiveFile;
    bool wantsDictionary = false;
};

std::string WithoutMarks(std::string text) {
    if (text.size() > 1 && text.front() == '"' && text.back() == '"') {
        return text.substr(1, text.size() - 2);
    }
    return text;
}

/// The last word is the source; "@FILE" names a directive file; of the directives only XMLGEN(WS)
/// says something to this program.
Arguments ReadArguments(const std::vector<std::string>& words) {
    Arguments arguments;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i + 1 == words.size()) {
            arguments.source = WithoutMarks(words[i]);
        } else if (words[i].starts_with('@')) {
            arguments.directiveFile = WithoutMarks(words[i].substr(1));
        } else if (SameWord(words[i], "XMLGEN(WS)")) {
            arguments.wantsDictionary = true;
        }
    }
    return arguments;
}

/// The source format that a directive file names, if any.
bool ReadDirectives(const std::string& name, std::optional<SourceFormat>& format,
                    CKTReport& report) {
    std::error_code ignored;
    std::ifstream file;
    // Opening a pipe would wait for a writer.
    if (std::filesystem::is_regular_file(name, ignored)) {
        file.open(name);
    }
    if (!file.is_open()) {
        report.Error({report.KeepName(name), 1}, TextOf<Message::UnreadableDirectives>());
        return false;
    }
    for (std::string line; std::getline(file, line);) {
        const std::string upper = ToUpper(line);
        if (upper.find("SOURCEFORMAT") == std::string::npos) {
            continue;
        }
        // A directive file holds directives of all kinds, and the last of this kind counts.
        if (upper.find("FREE") != std::string::npos) {
            format = SourceFormat::Free;
        } else if (upper.find("FIXED") != std::string::npos) {
            format = SourceFormat::Fixed;
        }
    }
    return true;
}

/// The path with its extension cut off.
std::string StemOf(const std::string& path) {
    const std::size_t name = path.rfind('/') == std::string::npos ? 0 : path.rfind('/') + 1;
    const std::size_t dot = path.rfind('.');
    return dot == std::string::npos || dot <= name ? path : path.substr(0, dot);
}

/// Writes under another name first, so that a dictionary is whole or not there, and nothing that
/// cannot be written to is lost.
void WriteDictionary(const std::string& path, const std::string& text, CKTReport& report) {
    const std::string temporary = path + '.' + std::to_string(::getpid());
    std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
    const bool opened = file.is_open();
    file << text;
    file.close();
    std::error_code failed;
    if (file) {
        std::filesystem::rename(temporary, path, failed);
    }
    if (!file || failed) {
        std::error_code ignored;
        if (opened) {
            std::filesystem::remove(temporary, ignored);
        }
        report.Error({}, TextOf<Message::NotWritten>(Quoted(path)));
    }
}

void Run(const Arguments& arguments, CKTReport& report) {
    if (arguments.source.empty()) {
        report.Error({}, TextOf<Message::NoSource>());
        return;
    }
    const std::string stem = StemOf(arguments.source);
    const std::string dictionary = stem + ".xml";
    // Writing the dictionary would destroy the source.
    if (dictionary == arguments.source) {
        report.Error({report.KeepName(arguments.source), 1}, TextOf<Message::SourceIsDictionary>());
        return;
    }
    std::optional<SourceFormat> format;
    if (!arguments.directiveFile.empty() &&
        !ReadDirectives(arguments.directiveFile, format, report)) {
        return;
    }
    const char* path = std::getenv("COBCPY");
    const CKTCopyLibrary library(arguments.source, path == nullptr ? "" : path);
    auto words = CKTSourceReader(report, library).Read(arguments.source, format);
    if (!words) {
        return;
    }
    const std::string name = stem.substr(stem.rfind('/') + 1);
    const SourcePlace start = {report.KeepName(arguments.source), 1};
    CKTProgramReader reader(std::move(*words), name, start, report);
    const std::deque<ProgramData> programs = reader.Read();
    if (report.Errors() == 0 && arguments.wantsDictionary) {
        WriteDictionary(dictionary, DictionaryOf(programs), report);
        // Nothing is left out of what could not be written.
        if (report.Errors() == 0) {
            NoteWhatIsLeftOut(programs, report);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    CKTReport report(std::cout);
    try {
        // A caller may leave out even the name of the program.
        Run(ReadArguments({argv + std::min(argc, 1), argv + argc}), report);
    } catch (const std::exception& e) {
        // Whatever the library throws, for want of memory above all, is an error like others.
        report.Error({}, TextOf<Message::Fault>(e.what()));
    }
    std::cout.flush();
    return report.Errors() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
