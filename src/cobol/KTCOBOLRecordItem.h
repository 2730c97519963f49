#ifndef DORVEX_COBOL_KTCOBOLRECORDITEM_H
#define DORVEX_COBOL_KTCOBOLRECORDITEM_H

#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cobol/ItemText.h"
#include "support/Limits.h"

class CKTXMLElement;

/// One COBOL data item with the XML facts that its XML clauses need: a plain record, in a tree for
/// each level-01 record. An item owns its children; all other pointers are borrowed. A record may
/// have a million items, so texts that stand in the schema's tree are shared with it.
class CKTCOBOLRecordItem {
public:
    static constexpr int kMaxLevel = kMaxItemLevel;
    static constexpr int kConditionLevel = kConditionNameLevel;

    /// What an item can be written as, its children aside.
    enum class Form {
        Unusable,   ///< no level, name or occurrence that an entry could have
        Complete,   ///< a condition name, or an elementary item
        Group,      ///< a group, if one of its children can be written that is no condition name
        Incomplete  ///< something that is missing a picture
    };

    CKTCOBOLRecordItem() = default;
    virtual ~CKTCOBOLRecordItem() = default;
    CKTCOBOLRecordItem(const CKTCOBOLRecordItem&) = delete;
    CKTCOBOLRecordItem& operator=(const CKTCOBOLRecordItem&) = delete;

    /// Says whether the item can be written: a condition name with a value, an elementary item with
    /// a picture or a floating-point usage, or a group with something to write below it. An item
    /// without any content is reported as a warning on standard error, once.
    bool IsValidCOBOLItem();

    /// The answer of IsValidCOBOLItem without its report.
    [[nodiscard]] bool CanBeWritten() const;

    /// The part of the answer that does not depend on other items.
    [[nodiscard]] Form FormOf() const;

    /// Writes the warning that the item has no content, unless it was written before.
    void ReportEmptyStructure();

    /// Searches `searchIn` in pre-order for a valid item below it with the data name of `item`, and
    /// stops at `item` itself. True with `reached` still false: an earlier namesake exists; true
    /// with `reached` set: `item` comes first.
    static bool FindRecordItemByName(CKTCOBOLRecordItem* searchIn, const CKTCOBOLRecordItem* item,
                                     bool& reached);

    /// Sets `target` to `name` with every underscore replaced by a hyphen.
    static void setCOBOLDataName(CKTItemText& target, std::string_view name);

    /// Writes `item` and what is below it to standard output, each data name with `prefix` before
    /// it, count-in clauses when `countIn`, names made unique within the record when `unique`.
    /// Returns whether the item was written; an item that is not valid is left out with its
    /// children.
    static bool OutputCOBOLItem(CKTCOBOLRecordItem* item, const std::string& prefix, bool countIn,
                                bool unique);

    /// Lays the free-form text of one entry out in fixed format on `out`, or on standard output
    /// when `out` has failed. Leading blanks beyond seven indent the entry, by 48 columns at most.
    static void OutputFixedFormatCOBOL(const char* line, std::ostream& out);

    /// Writes one token or run of blanks where `column` characters are on the line already,
    /// wrapping at column 72; `column` becomes the new count, 73 standing for a fresh entry.
    /// `indent` is the entry's indentation beyond area A; `comment` marks a comment entry.
    static void OutputCOBOLToken(const char* token, std::ostream& out, int indent, int& column,
                                 bool comment);

    /// Appends a child and sets its parent; returns it.
    CKTCOBOLRecordItem* AddChild(std::unique_ptr<CKTCOBOLRecordItem> child);

    /// Takes a child out and destroys it.
    void RemoveChild(const CKTCOBOLRecordItem* child);

    [[nodiscard]] bool IsCondition() const { return m_nLevel == kConditionLevel; }
    /// Says whether the item holds a value itself: a picture or a usage.
    [[nodiscard]] bool HasValue() const { return !m_sPicType.empty() || !m_sUsage.empty(); }

    /// The PICTURE clause with the blank before it; empty for an item without a picture.
    [[nodiscard]] std::string PictureClause() const;
    void AppendPictureClause(std::string& line) const;

    int m_nLevel = -1;              ///< 1 to 49, or 88; negative: not in use
    int m_nDigits = -1;             ///< when not -1, replaces m_sPicLength in the picture
    int m_nDepth = 0;               ///< blanks before the level in the built line
    bool m_bHasFraction = false;    ///< the picture may take decimal places
    bool m_bIsAttribute = false;    ///< the item comes from an XML attribute
    CKTItemText m_sFractionDigits;  ///< digits after the decimal point
    CKTItemText m_sDataName;        ///< set through setCOBOLDataName
    CKTItemText m_sPicType;         ///< picture symbol: "X", "9", "S9"
    CKTItemText m_sPicLength;       ///< picture repetition count
    CKTItemText m_sXMLName;         ///< the "identified by" name
    CKTItemText m_sNamespace;       ///< the "namespace is" URI
    CKTItemText m_sMinOccurs;       ///< as the schema writes it; an item without it is not valid
    CKTItemText m_sMaxOccurs;       ///< as the schema writes it
    CKTItemText m_sCountInName;     ///< the data name of the "count in" field
    CKTItemText m_sValue;           ///< the value of a condition name
    CKTItemText m_sUsage;           ///< the USAGE phrase, empty for display items
    CKTCOBOLRecordItem* m_pRedefines = nullptr;       ///< the item that this one redefines
    CKTCOBOLRecordItem* m_pParent = nullptr;          ///< null for a level-01 item
    const CKTXMLElement* m_pSchemaElement = nullptr;  ///< the declaration that the item stands for
    const CKTXMLElement* m_pSourceElement = nullptr;  ///< the type definition walked into the item
    std::vector<std::unique_ptr<CKTCOBOLRecordItem>> m_Children;
    bool m_bFoundValid = false;  ///< the writer has seen that the item can be written

private:
    bool m_bReported = false;
};

#endif
