#ifndef DORVEX_XMLGEN_DATADICTIONARY_H
#define DORVEX_XMLGEN_DATADICTIONARY_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "xml/KTXMLElement.h"
#include "xmlgen/ItemClauses.h"

/// The kinds of elements in a COBOL data dictionary; the numbers are those of the vocabulary.
enum class DictionaryKind : std::uint8_t {
    Unknown = 0,
    Program = 1,
    Group = 2,
    DataItems = 3,
    Numeric = 4,
    Alphanumeric = 5,
    AlphanumericEdited = 6,
    NumericEdited = 7,
    AlphanumericConstant = 8,
    NumericConstant = 9,
    AlphanumericRange = 10,
    NumericRange = 11,
    AlphanumericCondition = 12,
    NumericCondition = 13,
    Properties = 14,
    FileSection = 15,
    EntryPoints = 16,
    Fd = 17,
    National = 18,
};

/// The record that a dictionary describes: the first item that stands directly in the sections of a
/// program, has a name of its own and neither redefines nor renames another. Of several programs,
/// nested or not, the first to start that holds such an item is the one.
struct DictionaryRecord {
    bool hasProgram = false;
    const CKTXMLElement* program = nullptr;  ///< the program around the record; null without one
    const CKTXMLElement* record = nullptr;
    std::vector<const CKTXMLElement*>
        passed;  ///< redefining and renaming items of its and earlier programs before it
};

/// Classifies by the local part, the prefix left off, of the element's name, compared exactly.
DictionaryKind DictionaryKindOf(const CKTXMLElement* e);

/// Say whether a kind is a container of items inside a program, a data item, an elementary one, a
/// constant, a range or a condition-name.
bool IsSection(DictionaryKind kind);
bool IsDataItem(DictionaryKind kind);
bool IsElementary(DictionaryKind kind);
bool IsConstant(DictionaryKind kind);
bool IsRange(DictionaryKind kind);
bool IsCondition(DictionaryKind kind);

/// Finds the record below the root of a parsed dictionary. The document element is the program
/// itself or a wrapper around programs.
DictionaryRecord FindDictionaryRecord(const CKTXMLElement* root);

/// The value of an attribute; empty when it is absent. For single looks: who needs several clauses
/// of an item takes CKTItemClauses.
std::string_view AttributeOf(const CKTXMLElement* e, std::string_view name);

/// Say whether an item redefines another, renames another, or has no name of its own: none at all,
/// or FILLER in any case.
bool IsRedefinition(const CKTXMLElement* item);
bool IsRenaming(const CKTXMLElement* item);
bool IsUnnamed(const CKTXMLElement* item);

/// Says whether the text of a `name` is none: empty, or FILLER in any case.
bool IsNoName(std::string_view name);

/// The schema type of an item of a kind: "string", "integer", "decimal", "float" or "double".
std::string_view XmlTypeOf(DictionaryKind kind, const CKTItemClauses& clauses);

#endif
