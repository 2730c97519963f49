// Finds copy files by trying names: directory by directory, in each one extension after the other,
// each with all spellings. The first regular file counts, so the source's own directory hides the
// others. Reading the file is left to the source reader, and so is a library that COPY names.

#include "kcomp/CopyLibrary.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "kcomp/Text.h"

namespace {

constexpr std::array<std::string_view, 7> kExtensions = {"",     ".cpy", ".CPY", ".cbl",
                                                         ".CBL", ".cob", ".COB"};

std::string ToLower(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return lower;
}

}  // namespace

CKTCopyLibrary::CKTCopyLibrary(std::string_view source, std::string_view path) {
    const std::size_t slash = source.rfind('/');
    m_Directories.emplace_back(slash == std::string_view::npos ? "" : source.substr(0, slash + 1));
    while (!path.empty()) {
        const std::string_view directory = path.substr(0, path.find(':'));
        if (!directory.empty()) {
            m_Directories.push_back(std::string(directory) + '/');
        }
        path.remove_prefix(std::min(path.size(), directory.size() + 1));
    }
}

std::optional<std::string> CKTCopyLibrary::Find(const std::string& name, bool literal) const {
    std::vector<std::string> spellings = {name};
    // The case of a COBOL word means nothing, that of a file name does.
    if (!literal) {
        spellings.push_back(ToLower(name));
        spellings.push_back(ToUpper(name));
    }
    for (const std::string& directory : m_Directories) {
        for (const std::string_view extension : kExtensions) {
            for (const std::string& spelling : spellings) {
                // An absolute name is the same file from everywhere.
                std::string file = spelling.starts_with('/') ? spelling : directory + spelling;
                file += extension;
                std::error_code ignored;
                if (std::filesystem::is_regular_file(file, ignored)) {
                    return file;
                }
            }
        }
    }
    return std::nullopt;
}
