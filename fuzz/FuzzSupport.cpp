#include "FuzzSupport.h"

#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "schema/GeneratorState.h"
#include "support/Console.h"
#include "xml/KTDOMParser.h"

namespace fs = std::filesystem;

namespace {

std::stringbuf g_Output;
std::stringbuf g_Errors;
unsigned long g_nRuns = 0;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    std::cout.rdbuf(&g_Output);
    std::cerr.rdbuf(&g_Errors);
    std::cin.rdbuf(nullptr);
    DisplayHeader();
    // Inputs name locations elsewhere.
    ::setenv("DORVEX_NONET", "1", 1);
    ::setenv("XML_CATALOG_FILES", "", 1);
    // The parser library stays up between inputs; to start it takes longer than a run.
    CKTDOMParser::InitializePlatform();
    return 0;
}

void Require(bool kept, std::string_view promise) {
    if (!kept) {
        std::fprintf(stderr, "Broken promise: %s\n%s", std::string(promise).c_str(),
                     CKTFreshRun::Console().c_str());
        std::abort();
    }
}

// The program remembers which files it has read, so no two runs may share a directory.
CKTFreshRun::CKTFreshRun(std::size_t size)
    : m_Directory(fs::temp_directory_path() / std::to_string(::getpid()) /
                  std::to_string(++g_nRuns)),
      m_Before(fs::current_path()) {
    std::setlocale(LC_ALL, size % 7 == 0 ? "C" : "C.UTF-8");
    fs::create_directories(m_Directory);
    fs::current_path(m_Directory);
    g_Output.str({});
    g_Errors.str({});
    m_nErrorCount = 0;
    m_nWarningCount = 0;
    GeneratorState() = {};
}

CKTFreshRun::~CKTFreshRun() {
    RestoreStreams();
    Require(std::cout.rdbuf() == &g_Output && std::cerr.rdbuf() == &g_Errors,
            "both streams have their own buffers back");
    fs::current_path(m_Before);
    fs::remove_all(m_Directory);
}

std::string CKTFreshRun::Console() {
    return g_Output.str() + g_Errors.str();
}

std::vector<std::string> Split(const std::uint8_t* data, std::size_t size, char separator) {
    std::vector<std::string> pieces(1);
    for (const char c : std::string(data, data + size)) {
        if (c == separator) {
            pieces.emplace_back();
        } else {
            pieces.back() += c;
        }
    }
    return pieces;
}

void WriteWhole(const std::string& name, std::string_view text) {
    std::ofstream(name, std::ios::binary) << text;
}

std::string ReadWhole(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void RequireFixedFormat(const std::string& copybook) {
    std::istringstream lines(copybook);
    for (std::string line; std::getline(lines, line);) {
        Require(line.size() <= 72, "a line ends at column 72 at the latest");
        Require(line.substr(0, 6).find_first_not_of(' ') == std::string::npos,
                "columns 1 to 6 are blank");
        Require(line.size() < 7 || std::string_view(" -*").find(line[6]) < 3,
                "column 7 is blank or an indicator");
    }
}
