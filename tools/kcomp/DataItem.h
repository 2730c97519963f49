#ifndef DORVEX_KCOMP_DATAITEM_H
#define DORVEX_KCOMP_DATAITEM_H

#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kcomp/Picture.h"
#include "kcomp/Report.h"

/// Levels with a meaning of their own, and the highest of a data item in a record.
constexpr int kRenamesLevel = 66;
constexpr int kLoneLevel = 77;
constexpr int kConstantLevel = 78;
constexpr int kConditionLevel = 88;
constexpr int kHighestLevel = 49;

/// What an item is kept as. Spellings of one usage are one.
enum class Usage {
    None,  ///< no clause
    Display,
    Comp1,
    Comp2,
    Comp3,
    Comp4,
    Comp5,
    Index,
    Pointer,
    National,
    CompX,
    Comp6,
    ProcedurePointer
};

/// Where the sign stands; separate ones take up a byte.
enum class SignPosition { None, Leading, LeadingSeparate, Trailing, TrailingSeparate };

/// A value, or a range when `through` is not empty; both as the dictionary holds them.
struct ItemValue {
    std::string value;
    std::string through;
};

/// One data description entry, and what stands below it. Texts are empty and flags false where
/// the entry has no such clause. Values and numbers of occurrences are texts, because the
/// dictionary takes them as they are. An item owns its children; other items that it points at
/// belong to the same area and live as long.
struct DataItem {
    int level = 0;
    std::string name;  ///< empty for FILLER
    SourcePlace place;
    std::string picture;
    SourcePlace picturePlace;
    Usage usage = Usage::None;
    std::size_t binaryDigits = 0;  ///< of a binary type that has a size of its own: its digits,
    std::string binaryPicture;     ///< and the PICTURE that stands for it
    SignPosition sign = SignPosition::None;
    bool isConstant = false;
    bool justified = false;
    bool blankWhenZero = false;
    std::string minOccurs;
    std::string maxOccurs;
    std::string odo;
    std::string redefines;
    std::string renames;         ///< of level 66: the first item, with its qualifiers until the
    std::string renamesThrough;  ///< record is complete; and the last one
    std::vector<ItemValue> values;
    /// Clauses that go into the dictionary as they are: attribute and text.
    std::vector<std::pair<std::string, std::string>> notes;

    DataItem* parent = nullptr;
    int levelBelow = 0;                               ///< of the data items among the children
    DataItem* redefined = nullptr;                    ///< whose storage the item shares
    std::vector<std::unique_ptr<DataItem>> children;  ///< condition-names among them

    // What the clauses mean together; set once the record is complete.
    bool isGroup = false;
    Category category = Category::Alphanumeric;
    Picture description;      ///< length, digits and decimals
    std::size_t offset = 0;   ///< in bytes from the record's first
    std::size_t storage = 0;  ///< in bytes, of all occurrences
    std::size_t least = 0;    ///< the storage where binary items, addresses and slack bytes take
    std::size_t most = 0;     ///< up as little room, or as much, as systems give them
    bool isComplete = false;  ///< whether all of the above is set

    /// Of a group that is not complete: how many children have their place, and where they end.
    std::size_t placedChildren = 0;
    std::size_t placedEnd = 0;
};

/// The records of one FD or SD, or the items of WORKING-STORAGE; named constants stand among them,
/// in the order of the source.
struct RecordArea {
    bool isFile = false;
    std::string name;  ///< of the file
    std::vector<std::unique_ptr<DataItem>> items;
};

/// A program with its data; a bare copybook counts as one.
struct ProgramData {
    std::string name;
    std::deque<RecordArea> areas;  ///< in the order of the source
    SourcePlace comment;           ///< the first that stands among the data descriptions
};

#endif
