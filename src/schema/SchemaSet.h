#ifndef DORVEX_SCHEMA_SCHEMASET_H
#define DORVEX_SCHEMA_SCHEMASET_H

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "schema/KTXMLNamespaceSchemaPair.h"
#include "xml/KTDOMParser.h"
#include "xml/KTXMLElement.h"

class CKTXMLSchemaDoc;

/// Where a schema set gets its files from.
class CKTSchemaFiles {
public:
    virtual ~CKTSchemaFiles() = default;

    /// Reads a schema file and returns the root of its tree; null when the file is not usable,
    /// which is then reported.
    virtual std::unique_ptr<CKTXMLElement> Read(const std::string& fileName) = 0;

    /// Says whether the name leads to a file.
    [[nodiscard]] virtual bool Exists(const std::string& fileName) const = 0;

    /// What all names of one file have in common.
    [[nodiscard]] virtual std::string Identity(const std::string& fileName) const = 0;
};

/// The files behind a schema that a parser has loaded. What that load has reached is judged already
/// and only read; any other file is loaded by itself first.
class CKTLoadedSchemaFiles : public CKTSchemaFiles {
public:
    /// `parser` has loaded the main schema; borrowed, outlives the files and their trees.
    explicit CKTLoadedSchemaFiles(CKTDOMParser& parser) : m_Parser(parser) {}

    std::unique_ptr<CKTXMLElement> Read(const std::string& fileName) override;
    [[nodiscard]] bool Exists(const std::string& fileName) const override;
    [[nodiscard]] std::string Identity(const std::string& fileName) const override;

private:
    [[nodiscard]] bool IsJudged(const std::string& fileName) const;

    CKTDOMParser& m_Parser;
    std::vector<std::unique_ptr<CKTDOMParser>> m_FurtherParsers;
};

/// Owns what the loading of one schema creates: trees, imported documents, namespace pairs and
/// declarations that a redefinition replaced. It lives as long as the run and knows which files
/// were loaded, so that each is loaded once in each role.
class CKTSchemaSet {
public:
    /// `files` is borrowed and outlives the set.
    explicit CKTSchemaSet(CKTSchemaFiles& files);
    ~CKTSchemaSet();
    CKTSchemaSet(const CKTSchemaSet&) = delete;
    CKTSchemaSet& operator=(const CKTSchemaSet&) = delete;

    /// Reads a schema file. Returns the root of its tree, owned by the set, or null when the file
    /// is not usable; why has then been reported.
    CKTXMLElement* Load(const std::string& fileName);

    [[nodiscard]] bool Exists(const std::string& fileName) const {
        return m_Files.Exists(fileName);
    }

    /// Says whether `fileName` may still be included or redefined by a schema of the namespace
    /// `uri`, and remembers that it now is. A file that has no namespace of its own may be, once
    /// for each.
    bool BeginInclude(const std::string& fileName, const std::string& uri);

    /// Remembers that the included file has no namespace of its own.
    void NoteAdoption(const std::string& fileName);

    /// Remembers `doc` as what importing `fileName` gives; null for a file that cannot be used.
    void RegisterImport(const std::string& fileName, CKTXMLSchemaDoc* doc);

    /// Says whether `fileName` was imported before, and finds the document that it gave.
    bool FindImport(const std::string& fileName, CKTXMLSchemaDoc*& doc) const;

    /// Marks a file as being loaded while the guard lives: what it leads back to adds nothing.
    class CKTLoadGuard {
    public:
        CKTLoadGuard(CKTSchemaSet& set, const std::string& fileName);
        ~CKTLoadGuard();
        CKTLoadGuard(const CKTLoadGuard&) = delete;
        CKTLoadGuard& operator=(const CKTLoadGuard&) = delete;

    private:
        CKTSchemaSet& m_Set;
        std::string m_sIdentity;
        bool m_bAdded;
    };

    /// Take ownership and return what the set now keeps.
    CKTXMLSchemaDoc* Keep(std::unique_ptr<CKTXMLSchemaDoc> doc);
    CKTXMLNamespaceSchemaPair* Keep(std::unique_ptr<CKTXMLNamespaceSchemaPair> pair);
    CKTXMLElement* Keep(std::unique_ptr<CKTXMLElement> element);

private:
    struct Inclusion {
        bool isAdopted = false;
        std::unordered_set<std::string> namespaces;
    };

    CKTSchemaFiles& m_Files;
    std::vector<std::unique_ptr<CKTXMLElement>> m_Elements;
    std::vector<std::unique_ptr<CKTXMLSchemaDoc>> m_Documents;
    std::vector<std::unique_ptr<CKTXMLNamespaceSchemaPair>> m_Pairs;
    std::unordered_map<std::string, Inclusion> m_Included;
    std::unordered_set<std::string> m_Loading;
    std::unordered_map<std::string, CKTXMLSchemaDoc*> m_Imported;
};

#endif
