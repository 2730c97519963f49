#ifndef DORVEX_SCHEMA_SCHEMASTORE_H
#define DORVEX_SCHEMA_SCHEMASTORE_H

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "schema/KTXMLNamespaceSchemaPair.h"
#include "xml/KTDOMParser.h"
#include "xml/KTXMLElement.h"

class CKTXMLSchemaDoc;

/// Owns what the loading of one schema creates: further parsers, their trees, imported documents,
/// namespace pairs and declarations that a redefinition replaced. It lives as long as the run and
/// knows which files were loaded, so that each is loaded once in each role.
class CKTSchemaStore {
public:
    CKTSchemaStore();
    ~CKTSchemaStore();
    CKTSchemaStore(const CKTSchemaStore&) = delete;
    CKTSchemaStore& operator=(const CKTSchemaStore&) = delete;

    /// Parses a schema file with validation and a parser of its own. Returns the root of its tree,
    /// owned by the store, or null when the file is not usable; the parser has then reported why.
    CKTXMLElement* Load(const std::string& fileName);

    /// Says whether `fileName` may still be included or redefined, and remembers that it now is.
    bool BeginInclude(const std::string& fileName);

    /// Remembers `doc` as what importing `fileName` gives; null for a file that cannot be used.
    void RegisterImport(const std::string& fileName, CKTXMLSchemaDoc* doc);

    /// Says whether `fileName` was imported before, and finds the document that it gave.
    bool FindImport(const std::string& fileName, CKTXMLSchemaDoc*& doc) const;

    /// Marks a file as being loaded while the guard lives: what it leads back to adds nothing.
    class CKTLoadGuard {
    public:
        CKTLoadGuard(CKTSchemaStore& store, const std::string& fileName);
        ~CKTLoadGuard();
        CKTLoadGuard(const CKTLoadGuard&) = delete;
        CKTLoadGuard& operator=(const CKTLoadGuard&) = delete;

    private:
        CKTSchemaStore& m_Store;
        std::string m_sPath;
        bool m_bAdded;
    };

    /// Take ownership and return what the store now keeps.
    CKTXMLSchemaDoc* Keep(std::unique_ptr<CKTXMLSchemaDoc> doc);
    CKTXMLNamespaceSchemaPair* Keep(std::unique_ptr<CKTXMLNamespaceSchemaPair> pair);
    CKTXMLElement* Keep(std::unique_ptr<CKTXMLElement> element);

private:
    std::vector<std::unique_ptr<CKTDOMParser>> m_Parsers;
    std::vector<std::unique_ptr<CKTXMLElement>> m_Elements;
    std::vector<std::unique_ptr<CKTXMLSchemaDoc>> m_Documents;
    std::vector<std::unique_ptr<CKTXMLNamespaceSchemaPair>> m_Pairs;
    std::unordered_set<std::string> m_Included;
    std::unordered_set<std::string> m_Loading;
    std::unordered_map<std::string, CKTXMLSchemaDoc*> m_Imported;
};

#endif
