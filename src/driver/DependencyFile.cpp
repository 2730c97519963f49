// One make rule about a finished run. Names are escaped as compilers escape them, which make and
// other build tools read alike; a name with a line break has no escaped form and is left out. What
// was read but is gone, such as the dictionary and a temporary copy, is no dependency, and neither
// is a mapping file that the run wrote before it read it. Without a rule an old file stays.

#include "driver/DependencyFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <vector>

#include "support/Complaints.h"

namespace {

std::string Escaped(std::string_view path) {
    std::string text;
    std::size_t backslashes = 0;
    for (const char c : path) {
        if (c == ' ' || c == '\t' || c == '#' || c == ':') {
            // Backslashes before such a character quote each other, so those of the name are
            // doubled.
            text.append(backslashes + 1, '\\');
        } else if (c == '$') {
            text += '$';
        }
        text += c;
        backslashes = c == '\\' ? backslashes + 1 : 0;
    }
    return text;
}

bool HasEscapedForm(const std::string& path) {
    return path.find_first_of("\r\n") == std::string::npos;
}

/// Compares files, not names. A run has at most three outputs, so a search is enough.
bool IsOneOf(const std::vector<std::string>& outputs, const std::string& path) {
    return std::any_of(outputs.begin(), outputs.end(), [&](const std::string& output) {
        std::error_code error;
        return std::filesystem::equivalent(output, path, error);
    });
}

}  // namespace

std::string DependencyRule(const FilesUsed& files) {
    std::string rule;
    for (const std::string& output : files.outputs) {
        if (HasEscapedForm(output)) {
            rule += (rule.empty() ? "" : " ") + Escaped(output);
        }
    }
    // A rule about half an output would make a build believe that it is up to date.
    if (rule.empty() || !files.areOutputsWritten) {
        return {};
    }
    rule += ':';
    for (const std::string& path : files.read) {
        std::error_code error;
        if (HasEscapedForm(path) && std::filesystem::exists(path, error) &&
            !IsOneOf(files.outputs, path)) {
            rule += " \\\n  " + Escaped(path);
        }
    }
    return rule + "\n";
}

void WriteDependencyFile(const std::string& name) {
    if (name.empty()) {
        return;
    }
    const std::string rule = DependencyRule(UsedFiles());
    if (rule.empty()) {
        return;
    }
    std::ofstream file(name, std::ios::binary | std::ios::trunc);
    file << rule;
    file.close();
    if (file.fail()) {
        Report<SupportMessage::UnwritableOutput>(name);
    }
}
