#ifndef DORVEX_SCHEMA_BROUGHTDECLARATIONS_H
#define DORVEX_SCHEMA_BROUGHTDECLARATIONS_H

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "schema/SchemaVocabulary.h"
#include "xml/KTXMLElement.h"

class CKTXMLSchemaDoc;

/// The declarations that one file brings into the schema that includes it, in order, with an index
/// by name. A declaration that a redefinition replaced leaves an empty place.
class CKTCarriedDeclarations {
public:
    void Add(std::unique_ptr<CKTXMLElement> declaration);

    /// Takes the first declaration of that name out, whatever its kind; null for none.
    std::unique_ptr<CKTXMLElement> TakeFirst(const std::string& name);

    /// Takes all that is left out.
    std::vector<std::unique_ptr<CKTXMLElement>> TakeAll();

private:
    std::vector<std::unique_ptr<CKTXMLElement>> m_Declarations;
    std::unordered_map<std::string, std::deque<std::size_t>> m_Places;
};

/// What all included files of a set bring into the main schema, in order, with the document that
/// each declaration belongs to: the main one, or the imported one whose include it comes from.
class CKTBroughtDeclarations {
public:
    struct Entry {
        std::unique_ptr<CKTXMLElement> declaration;
        CKTXMLSchemaDoc* owner;
    };

    [[nodiscard]] std::size_t size() const { return m_Entries.size(); }

    /// Appends what a file of `owner` carries.
    void Append(std::vector<std::unique_ptr<CKTXMLElement>> declarations, CKTXMLSchemaDoc* owner);

    /// The place of the declaration of this kind and name among those from the place `from` on.
    [[nodiscard]] std::optional<std::size_t> Find(SchemaKind kind, const std::string& name,
                                                  std::size_t from) const;

    /// The entry at a place; whoever takes its declaration puts another one there.
    Entry& At(std::size_t place) { return m_Entries[place]; }

    std::vector<Entry> TakeAll();

private:
    static std::string Key(SchemaKind kind, std::string_view name);

    std::vector<Entry> m_Entries;
    std::unordered_map<std::string, std::vector<std::size_t>> m_Places;
};

#endif
