// Usage: case_runner PROGRAM CASE-DIRECTORY TESTS-DIRECTORY
// Runs the case in a fresh directory and compares both streams, the exit status and every file.

#include <chrono>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "CaseFiles.h"
#include "CaseReport.h"
#include "ChildProcess.h"
#include "CopybookCheck.h"

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kLimit{120};
// No status of the program itself, so that a sanitizer's finding is never taken for one.
constexpr const char* kSanitizerOptions = "exitcode=99:print_stacktrace=1";

std::string SearchPath() {
    const char* path = std::getenv("PATH");
    return path != nullptr ? path : "/usr/bin:/bin";
}

std::vector<std::string> Environment(const Case& test, const fs::path& scratch,
                                     const fs::path& tests) {
    return {"PATH=" + (scratch / "bin").string() + ":" + SearchPath(),
            "LC_ALL=" + test.locale,
            "HOME=" + scratch.string(),
            "TZ=UTC",
            "XML_CATALOG_FILES=",  // instead of the machine's catalog
            "LSAN_OPTIONS=print_suppressions=0:suppressions=" +
                fs::canonical(tests / "../scripts/lsan.supp").string(),
            std::string("ASAN_OPTIONS=") + kSanitizerOptions,
            std::string("UBSAN_OPTIONS=") + kSanitizerOptions};
}

void LinkPrograms(const Case& test, const fs::path& program, const fs::path& tools,
                  const fs::path& bin) {
    fs::create_directory(bin);
    fs::create_symlink(fs::canonical(program), bin / "dorvex");
    for (const std::string& name : test.tools) {
        // A program of the build, such as libexec/kcomp, or one of the tests' own.
        const fs::path built = program.parent_path() / name;
        fs::create_symlink(fs::canonical(fs::exists(built) ? built : tools / name),
                           bin / fs::path(name).filename());
    }
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

std::string Numbered(const std::string& text) {
    std::string numbered;
    std::size_t number = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start) + 1;
        numbered += "  " + std::to_string(++number) + ": " + text.substr(start, end - start);
        start = end;
    }
    return numbered;
}

void CheckCopybook(const std::string& name, const FileTree& files, const fs::path& scratch,
                   Failures& failures) {
    const auto found = files.find(name);
    if (found == files.end()) {
        failures.push_back("cobc names " + name + ", which does not exist");
        return;
    }
    try {
        const std::string program = ProgramAround(found->second);
        WriteFile(scratch / "checked.cob", program);
        const ChildResult result =
            RunChild({{"cobc", "-fsyntax-only", "-std=mf", "-free", "checked.cob"},
                      {"PATH=" + SearchPath(), "LC_ALL=C.UTF-8", "HOME=" + scratch.string()},
                      scratch,
                      "/dev/null",
                      kLimit});
        if (result.status != 0 || result.timedOut) {
            failures.push_back("cobc refuses " + name + "\n" + result.errors + result.output +
                               Numbered(program));
        }
    } catch (const std::exception& error) {
        failures.push_back("cobc check of " + name + ": " + error.what());
    }
}

Failures RunCase(const fs::path& program, const fs::path& directory, const fs::path& tests) {
    const Case test = LoadCase(directory);
    const CKTScratchDirectory scratch;
    const fs::path work = scratch.Path() / "work";
    fs::create_directory(work);
    if (fs::exists(directory / "in")) {
        fs::copy(directory / "in", work, fs::copy_options::recursive);
    }
    LinkPrograms(test, program, tests / "tools", scratch.Path() / "bin");

    ChildCommand command{.arguments = {"/bin/sh", "-c", test.command},
                         .environment = Environment(test, scratch.Path(), tests),
                         .directory = work,
                         .limit = kLimit};
    if (fs::exists(directory / "stdin")) {
        command.input = fs::canonical(directory / "stdin");
    }
    ChildResult result = RunChild(command);
    FileTree files = ReadTree(work);
    ReplaceAll(result.output, work.string(), "@DIR@");
    ReplaceAll(result.errors, work.string(), "@DIR@");
    for (auto& [name, bytes] : files) {
        ReplaceAll(bytes, work.string(), "@DIR@");
    }

    Failures failures;
    if (result.timedOut) {
        failures.push_back("still running after " + std::to_string(kLimit.count()) + " seconds");
    } else if (result.status != test.status) {
        failures.push_back("status: expected " + std::to_string(test.status) + ", got " +
                           std::to_string(result.status));
    }
    CompareText("stdout", test.output, result.output, failures);
    CompareText("stderr", test.errors, result.errors, failures);
    CompareFiles(test, files, failures);
    for (const std::string& name : test.copybooks) {
        CheckCopybook(name, files, scratch.Path(), failures);
    }
    return failures;
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() != 4) {
        std::cerr << "usage: case_runner PROGRAM CASE-DIRECTORY TESTS-DIRECTORY\n";
        return 2;
    }
    try {
        const Failures failures = RunCase(arguments[1], arguments[2], arguments[3]);
        for (const std::string& failure : failures) {
            std::cout << failure << '\n';
        }
        return failures.empty() ? 0 : 1;
    } catch (const std::exception& error) {
        std::cout << "the case cannot be run: " << error.what() << '\n';
        return 2;
    }
}
