#ifndef DORVEX_KCOMP_MESSAGES_H
#define DORVEX_KCOMP_MESSAGES_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

/// What this program has to say, each message once and in the order of the list that users read,
/// which is checked against this table. The last one is a note, the others are complaints.
enum class Message {
    NoSource,
    UnreadableFile,
    UnreadableDirectives,
    NotWritten,
    SourceIsDictionary,
    NoData,
    MoreErrors,
    Fault,
    Indicator,
    Directive,
    NothingToContinue,
    Continuation,
    OpenLiteral,
    CutLiteral,
    ControlCharacter,
    TextAfterEnd,
    NoCopyFile,
    UnreadableCopyFile,
    CopyOfItself,
    CopyTooDeep,
    CopyTooLarge,
    CopyWithoutName,
    CopyFromLibrary,
    CopyWithoutPeriod,
    Replacing,
    Replace,
    Exec,
    ExecOf,
    NoEntry,
    SectionWithoutPeriod,
    UnknownSection,
    OutsideSections,
    EntryWithoutPeriod,
    MissingPeriod,
    UnknownLevel,
    RecordWithoutFile,
    FileWithoutName,
    UnknownClause,
    RepeatedClause,
    UnknownUsage,
    IncompleteUsage,
    IncompleteBlank,
    IncompleteSign,
    IncompletePicture,
    OccursBounds,
    OccursTo,
    OccursMissing,
    RenamesLevel,
    SeveralValues,
    JoinedLiterals,
    ConditionClauses,
    RenamesClauses,
    ConstantClauses,
    MissingName,
    MissingValue,
    NoInteger,
    NoOperand,
    OpenParenthesis,
    ExpressionRange,
    LengthOfUnknown,
    LengthOfSeveral,
    UnboundedStorage,
    NoLiteral,
    NoName,
    NoValue,
    UnexpectedIs,
    PictureSymbol,
    PictureCount,
    PictureCategory,
    PictureDigits,
    PictureLength,
    ItemWithoutPicture,
    ItemTakesNoClauses,
    ItemIsBinary,
    ItemUsage,
    ItemSign,
    ItemJustified,
    ItemBlank,
    ItemIsGroup,
    NoRecord,
    ParentHasPicture,
    LoneInFile,
    LevelBelow,
    ConditionOfNothing,
    RenamesOfNothing,
    RedefinesUnknown,
    RenamesUnknown,
    RenamesSeveral,
    RenamesTable,
    RenamesOrder,
    ItemTooLarge,
    LeftOut,
};

/// One message; a word in braces stands for a value. NAME is shown between quotation marks, which
/// come with the value: a literal of the source has its own.
struct TextRow {
    Message id;
    std::string_view text;
};

inline constexpr auto kTextRows = std::to_array<TextRow>({
    {Message::NoSource, "No source is given"},
    {Message::UnreadableFile, "The file cannot be read"},
    {Message::UnreadableDirectives, "The directive file cannot be read"},
    {Message::NotWritten, "The data dictionary {NAME} cannot be written"},
    {Message::SourceIsDictionary, "The source has the name of its dictionary"},
    {Message::NoData, "The source holds no program and no data description"},
    {Message::MoreErrors, "There are more errors"},
    {Message::Fault, "{TEXT}"},
    {Message::Indicator, "Column 7 holds {NAME}, which is no indicator of the fixed format"},
    {Message::Directive, "Directive {NAME} is not supported"},
    {Message::NothingToContinue, "There is no line to continue"},
    {Message::Continuation, "A continued literal begins with its quotation mark"},
    {Message::OpenLiteral, "The literal has no end"},
    {Message::CutLiteral, "The literal has no end; text behind column 72 is not read"},
    {Message::ControlCharacter, "The line holds a control character"},
    {Message::TextAfterEnd, "Text follows the mark of the end of file"},
    {Message::NoCopyFile, "Copy file {NAME} is not found"},
    {Message::UnreadableCopyFile, "Copy file {NAME} cannot be read"},
    {Message::CopyOfItself, "Copy file {NAME} copies itself"},
    {Message::CopyTooDeep, "The copy files are nested too deep"},
    {Message::CopyTooLarge, "The copy files hold too much text"},
    {Message::CopyWithoutName, "COPY names no copy file"},
    {Message::CopyFromLibrary, "COPY from a named library is not supported"},
    {Message::CopyWithoutPeriod, "COPY does not end with a period"},
    {Message::Replacing, "The REPLACING phrase of COPY cannot be read"},
    {Message::Replace, "\"REPLACE\" is not supported"},
    {Message::Exec, "\"EXEC\" is not supported"},
    {Message::ExecOf, "\"EXEC {TEXT}\" is not supported"},
    {Message::NoEntry, "{NAME} begins no data description entry"},
    {Message::SectionWithoutPeriod, "The section header has no period"},
    {Message::UnknownSection, "Section {NAME} is not known"},
    {Message::OutsideSections, "{NAME} stands in no section"},
    {Message::EntryWithoutPeriod, "The entry does not end with a period"},
    {Message::MissingPeriod, "The period before {NUMBER} is missing"},
    {Message::UnknownLevel, "Level {NUMBER} is none of 01 to 49, 66, 77, 78 and 88"},
    {Message::RecordWithoutFile, "The record stands under no FD or SD"},
    {Message::FileWithoutName, "{NAME} names no file"},
    {Message::UnknownClause, "Clause {NAME} is not supported"},
    {Message::RepeatedClause, "Clause {TEXT} is given twice"},
    {Message::UnknownUsage, "USAGE {NAME} is not supported"},
    {Message::IncompleteUsage, "USAGE is not complete"},
    {Message::IncompleteBlank, "BLANK WHEN ZERO is not complete"},
    {Message::IncompleteSign, "SIGN is neither LEADING nor TRAILING"},
    {Message::IncompletePicture, "PICTURE has no character-string"},
    {Message::OccursBounds, "OCCURS has no rising bounds"},
    {Message::OccursTo, "OCCURS with TO needs DEPENDING ON"},
    {Message::OccursMissing, "DEPENDING ON, INDEXED BY and keys belong to an OCCURS clause"},
    {Message::RenamesLevel, "RENAMES belongs to level 66"},
    {Message::SeveralValues, "Only a condition-name has several values"},
    {Message::JoinedLiterals, "Only plain literals can be joined by \"&\""},
    {Message::ConditionClauses, "A condition-name has a name, a VALUE clause and nothing else"},
    {Message::RenamesClauses, "An entry of level 66 has a name, a RENAMES clause and nothing else"},
    {Message::ConstantClauses, "A constant has a name, one value and nothing else"},
    {Message::MissingName, "A name is missing at the end of the entry"},
    {Message::MissingValue, "A value is missing at the end of the entry"},
    {Message::NoInteger, "A whole number of at most nine digits is expected"},
    {Message::NoOperand, "A whole number, a constant or LENGTH OF is expected in the expression"},
    {Message::OpenParenthesis, "A parenthesis of the expression is not closed"},
    {Message::ExpressionRange, "The expression has no whole number of 64 bits as its value"},
    {Message::LengthOfUnknown, "LENGTH OF names {NAME}, which does not stand before it"},
    {Message::LengthOfSeveral, "LENGTH OF names {NAME}, of which there are several"},
    {Message::UnboundedStorage, "OCCURS UNBOUNDED has no storage in the WORKING-STORAGE SECTION"},
    {Message::NoLiteral, "A literal is expected"},
    {Message::NoName, "{NAME} is no name"},
    {Message::NoValue, "{NAME} is no value"},
    {Message::UnexpectedIs, "\"IS\" is not expected here"},
    {Message::PictureSymbol, "PICTURE {NAME} holds what is no PICTURE symbol"},
    {Message::PictureCount, "PICTURE {NAME} has a count of zero"},
    {Message::PictureCategory, "PICTURE {NAME} fits no category of data"},
    {Message::PictureDigits, "PICTURE {NAME} has more than 38 digits"},
    {Message::PictureLength, "PICTURE {NAME} is too long"},
    {Message::ItemWithoutPicture, "Item {NAME} has neither a PICTURE nor items below it"},
    {Message::ItemTakesNoClauses,
     "Item {NAME} has a usage that takes neither PICTURE nor JUSTIFIED nor BLANK"},
    {Message::ItemIsBinary, "Item {NAME} has a binary type, which takes no PICTURE"},
    {Message::ItemUsage, "Item {NAME} has USAGE {TEXT}, which does not go with PICTURE {NAME}"},
    {Message::ItemSign,
     "Item {NAME} has a SIGN clause but is no signed numeric item of USAGE DISPLAY"},
    {Message::ItemJustified, "Item {NAME} is numeric and cannot be JUSTIFIED"},
    {Message::ItemBlank, "Item {NAME} cannot be BLANK WHEN ZERO"},
    {Message::ItemIsGroup,
     "Item {NAME} is a group, which is neither JUSTIFIED nor BLANK WHEN ZERO"},
    {Message::NoRecord, "{NAME} stands under no level 01"},
    {Message::ParentHasPicture, "{NAME} stands under an item that has a PICTURE"},
    {Message::LoneInFile, "{NAME} is of level 77, which is no record of a file"},
    {Message::LevelBelow, "The level of {NAME} is that of no item before it in its group"},
    {Message::ConditionOfNothing, "Condition-name {NAME} stands behind no item"},
    {Message::RenamesOfNothing, "{NAME} renames items of no record"},
    {Message::RedefinesUnknown, "REDEFINES names {NAME}, which does not stand before it beside it"},
    {Message::RenamesUnknown, "RENAMES names {NAME}, which the record does not have"},
    {Message::RenamesSeveral, "RENAMES names {NAME}, of which the record has several"},
    {Message::RenamesTable, "RENAMES names {NAME}, which has OCCURS"},
    {Message::RenamesOrder, "RENAMES names {NAME}, which does not stand behind {NAME}"},
    {Message::ItemTooLarge, "Item {NAME} is larger than {NAME}, which it redefines"},
    {Message::LeftOut, "Left out of the schema and the copybook, here first: {TEXT}"},
});
static_assert(std::all_of(kTextRows.begin(), kTextRows.end(), [](const TextRow& row) {
    return static_cast<std::size_t>(row.id) == static_cast<std::size_t>(&row - kTextRows.data());
}));

struct TextWord;

/// The text of a message with its values. None but those of the table can be made, and the report
/// takes nothing else.
class CKTMessageText {
public:
    CKTMessageText() = default;

    [[nodiscard]] bool Empty() const { return m_sText.empty(); }
    [[nodiscard]] const std::string& Text() const { return m_sText; }

private:
    template <Message kId, typename... Values>
    friend CKTMessageText TextOf(const Values&... values);
    friend CKTMessageText ComplaintOf(const TextWord& fault);  // which a word keeps as plain text

    explicit CKTMessageText(std::string text) : m_sText(std::move(text)) {}

    static CKTMessageText Fill(std::string_view text,
                               std::initializer_list<std::string_view> values);

    std::string m_sText;
};

/// Returns the text of the message `kId` with the texts `values` in the places of the words in
/// braces, in their order. There are as many values as places.
template <Message kId, typename... Values>
CKTMessageText TextOf(const Values&... values) {
    constexpr std::string_view text = kTextRows.at(static_cast<std::size_t>(kId)).text;
    static_assert(std::count(text.begin(), text.end(), '{') == sizeof...(Values));
    return CKTMessageText::Fill(text, {std::string_view(values)...});
}

#endif
