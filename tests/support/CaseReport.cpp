#include "CaseReport.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace {

constexpr std::size_t kShownLines = 30;

// Each line keeps its line feed, so that a missing last one is a difference like any other.
std::vector<std::string_view> Lines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

std::string Visible(std::string_view line) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string shown = "\"";
    for (const char c : line) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '\n') {
            shown += "\\n";
        } else if (c == '\t') {
            shown += "\\t";
        } else if (code < 0x20 || code == 0x7f) {
            shown += {'\\', 'x', kDigits[code / 16U], kDigits[code % 16U]};
        } else {
            shown += c;
        }
    }
    return shown + '"';
}

std::string LineOrEnd(const std::vector<std::string_view>& lines, std::size_t index) {
    return index < lines.size() ? Visible(lines[index]) : "(end)";
}

}  // namespace

void CompareText(const std::string& what, const std::string& expected, const std::string& got,
                 Failures& failures) {
    if (expected == got) {
        return;
    }
    const std::vector<std::string_view> wanted = Lines(expected);
    const std::vector<std::string_view> lines = Lines(got);
    const std::size_t common = std::min(wanted.size(), lines.size());
    std::size_t first = 0;
    while (first < common && wanted[first] == lines[first]) {
        ++first;
    }
    std::string text = what + " differs in line " + std::to_string(first + 1);
    text += "\n  expected: " + LineOrEnd(wanted, first);
    text += "\n  got:      " + LineOrEnd(lines, first);
    const std::size_t last = std::min(lines.size(), first + kShownLines);
    for (std::size_t i = first + 1; i < last; ++i) {
        text += "\n            " + Visible(lines[i]);
    }
    if (last < lines.size()) {
        text += "\n            (" + std::to_string(lines.size() - last) + " more lines)";
    }
    failures.push_back(text);
}

void CompareFiles(const Case& expected, const FileTree& got, Failures& failures) {
    FileTree wanted = expected.given;
    for (const std::string& name : expected.gone) {
        if (wanted.erase(name) == 0) {
            failures.push_back("gone names " + name + ", which in/ does not hold");
        }
    }
    for (const auto& [name, bytes] : expected.written) {
        wanted[name] = bytes;
    }
    for (const auto& [name, bytes] : wanted) {
        const auto found = got.find(name);
        if (found == got.end()) {
            failures.push_back("file " + name + " is missing");
        } else {
            CompareText("file " + name, bytes, found->second, failures);
        }
    }
    for (const auto& [name, bytes] : got) {
        if (!wanted.contains(name)) {
            failures.push_back("file " + name + " is left over");
        }
    }
}
