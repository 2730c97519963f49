#ifndef DORVEX_TESTS_SCHEMA_SCHEMAFILES_H
#define DORVEX_TESTS_SCHEMA_SCHEMAFILES_H

#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "SchemaTree.h"
#include "schema/SchemaSet.h"

// Builds a tree from lines of "tag attribute=value ...", each two blanks deeper than its parent's.
inline std::unique_ptr<CKTXMLElement> TreeOf(const std::string& text) {
    auto root = std::make_unique<CKTXMLElement>();
    std::vector<CKTXMLElement*> above = {root.get()};
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t depth = line.find_first_not_of(' ') / 2;
        std::istringstream words(line);
        std::string tag;
        words >> tag;
        Attributes attributes;
        for (std::string word; words >> word;) {
            const std::size_t sign = word.find('=');
            attributes.emplace_back(word.substr(0, sign), word.substr(sign + 1));
        }
        above.resize(depth + 1);
        above.push_back(Add(above.back(), tag, attributes));
    }
    return root;
}

// The files of a schema set, held in memory: names lead to texts as TreeOf takes them. "link:NAME"
// is another name of a file.
class MemoryFiles : public CKTSchemaFiles {
public:
    explicit MemoryFiles(std::map<std::string, std::string> files = {})
        : m_files(std::move(files)) {}

    std::unique_ptr<CKTXMLElement> Read(const std::string& name) override {
        reads += reads.empty() ? name : " " + name;
        return Exists(name) ? TreeOf(m_files.at(Identity(name))) : nullptr;
    }
    [[nodiscard]] bool Exists(const std::string& name) const override {
        return m_files.contains(Identity(name));
    }
    [[nodiscard]] std::string Identity(const std::string& name) const override {
        const std::size_t link = name.find("link:");
        return link == std::string::npos ? name : name.substr(link + 5);
    }

    std::string reads;

private:
    std::map<std::string, std::string> m_files;
};

#endif
