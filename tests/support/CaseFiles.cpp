#include "CaseFiles.h"

#include <array>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 11> kEntries = {
    "cmd", "in", "stdin", "stdout", "stderr", "status", "out", "gone", "locale", "tools", "cobc"};

std::string ReadOptional(const fs::path& file) {
    return fs::exists(file) ? ReadFile(file) : "";
}

std::vector<std::string> ReadLines(const fs::path& file) {
    std::istringstream in(ReadOptional(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        if (!line.empty()) {
            lines.push_back(line);
        }
    }
    return lines;
}

std::string ReadLine(const fs::path& file, const std::string& otherwise) {
    const std::vector<std::string> lines = ReadLines(file);
    return lines.empty() ? otherwise : lines.front();
}

int ReadStatus(const fs::path& file) {
    const std::string text = ReadLine(file, "0");
    if (text.size() > 3 || text.find_first_not_of("0123456789") != std::string::npos) {
        throw std::runtime_error("status is no exit status: " + text);
    }
    return std::stoi(text);
}

// A misspelt name would otherwise be an expectation that nothing compares.
void CheckEntries(const fs::path& directory) {
    for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
        const std::string name = entry.path().filename().string();
        bool known = false;
        for (const std::string_view candidate : kEntries) {
            known = known || candidate == name;
        }
        if (!known) {
            throw std::runtime_error("a case has no entry named " + name);
        }
    }
}

}  // namespace

Case LoadCase(const fs::path& directory) {
    CheckEntries(directory);
    Case loaded;
    loaded.directory = directory;
    loaded.command = ReadFile(directory / "cmd");
    loaded.locale = ReadLine(directory / "locale", "C.UTF-8");
    loaded.output = ReadOptional(directory / "stdout");
    loaded.errors = ReadOptional(directory / "stderr");
    loaded.status = ReadStatus(directory / "status");
    loaded.given = ReadTree(directory / "in");
    loaded.written = ReadTree(directory / "out");
    for (const std::string& name : ReadLines(directory / "gone")) {
        loaded.gone.insert(name);
    }
    loaded.tools = ReadLines(directory / "tools");
    loaded.copybooks = ReadLines(directory / "cobc");
    return loaded;
}
