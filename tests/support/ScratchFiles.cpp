#include "ScratchFiles.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace fs = std::filesystem;

CKTScratchDirectory::CKTScratchDirectory() {
    std::string name = (fs::canonical(fs::temp_directory_path()) / "case-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), name);
    }
    m_Path = name;
}

CKTScratchDirectory::~CKTScratchDirectory() {
    std::error_code ignored;
    fs::remove_all(m_Path, ignored);
}

CKTWorkingDirectory::CKTWorkingDirectory() {
    fs::current_path(m_Scratch.Path());
}

CKTWorkingDirectory::~CKTWorkingDirectory() {
    std::error_code ignored;
    fs::current_path(m_Start, ignored);
}

std::string ReadFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return {std::istreambuf_iterator<char>(in), {}};
}

FileTree ReadTree(const fs::path& directory) {
    FileTree tree;
    if (!fs::exists(directory)) {
        return tree;
    }
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory)) {
        const std::string name = entry.path().lexically_relative(directory).string();
        if (entry.is_symlink() && !entry.exists()) {
            tree[name] = "(a link to nothing)";
        } else if (entry.is_regular_file()) {
            tree[name] = ReadFile(entry.path());
        } else if (!entry.is_directory()) {
            tree[name] = "(no regular file)";
        }
    }
    return tree;
}

void WriteFile(const fs::path& file, const std::string& bytes) {
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    out.close();
    if (!out) {
        throw std::runtime_error("cannot write " + file.string());
    }
}
