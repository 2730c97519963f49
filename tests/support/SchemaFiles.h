#ifndef DORVEX_TESTS_SUPPORT_SCHEMAFILES_H
#define DORVEX_TESTS_SUPPORT_SCHEMAFILES_H

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "ElementTree.h"
#include "schema/GeneratorState.h"
#include "schema/SchemaSet.h"

/// The files of a schema set, held in memory: names lead to texts as TreeOf takes them. "link:NAME"
/// is another name of a file.
class CKTMemoryFiles : public CKTSchemaFiles {
public:
    explicit CKTMemoryFiles(std::map<std::string, std::string> files = {})
        : m_Files(std::move(files)) {}

    std::unique_ptr<CKTXMLElement> Read(const std::string& name) override {
        m_sReads += m_sReads.empty() ? name : " " + name;
        return Exists(name) ? TreeOf(m_Files.at(Identity(name))) : nullptr;
    }
    [[nodiscard]] bool Exists(const std::string& name) const override {
        return m_Files.contains(Identity(name));
    }
    [[nodiscard]] std::string Identity(const std::string& name) const override {
        const std::size_t link = name.find("link:");
        return link == std::string::npos ? name : name.substr(link + 5);
    }

    /// The names that were read, in order, with blanks between them.
    [[nodiscard]] const std::string& Reads() const { return m_sReads; }

private:
    std::map<std::string, std::string> m_Files;
    std::string m_sReads;
};

/// Makes `schema` the process-wide current schema element as long as it lives.
class CKTCurrentSchema {
public:
    explicit CKTCurrentSchema(const CKTXMLElement* schema) {
        GeneratorState().currentSchemaElement = schema;
    }
    ~CKTCurrentSchema() { GeneratorState().currentSchemaElement = nullptr; }
    CKTCurrentSchema(const CKTCurrentSchema&) = delete;
    CKTCurrentSchema& operator=(const CKTCurrentSchema&) = delete;
};

#endif
