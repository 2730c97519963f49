#ifndef DORVEX_SUPPORT_MESSAGE_H
#define DORVEX_SUPPORT_MESSAGE_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

#include "support/Severity.h"

/// Each room has one table of its messages in its `Complaints.h`, where each stands once: a row for
/// each enumerator, in their order. The list of messages that users read is checked against them.

/// Where a message goes; a part stands within another message.
enum class MessageStream { Output, Errors, Part };

/// One message. In `text` a word in braces stands for a value: "Head element \"{NAME}\" is ...".
/// Without a severity the text is the whole line.
template <typename Id>
struct MessageRow {
    Id id;
    MessageStream stream;
    std::string_view severity;
    std::string_view text;
};

/// The messages of the room that owns the enumeration `Id`, an array of rows. An enumeration
/// without a table has none, so that using it is an error of the build.
template <typename Id>
inline constexpr std::nullptr_t kMessages = nullptr;

/// Says whether each row of `rows` stands at the place that its enumerator has.
template <typename Rows>
constexpr bool AreInOrder(const Rows& rows) {
    return std::all_of(rows.begin(), rows.end(), [&](const auto& row) {
        return static_cast<std::size_t>(row.id) == static_cast<std::size_t>(&row - &*rows.begin());
    });
}

/// Severity and text of a message with `values` in the places of the words in braces, in their
/// order and without a line end. There are as many values as places.
std::string FillMessage(std::string_view severity, std::string_view text,
                        std::initializer_list<std::string_view> values);

/// Writes `line` and a line end to a standard stream through the counting output operator, in one
/// piece: the operator looks at the beginning of what it is given. Anything but Output means
/// standard error.
void WriteMessage(MessageStream stream, std::string line);

/// A value as it is shown: a whole number in digits, a text as it is. A text is borrowed from the
/// caller for the length of the call.
template <typename Value>
auto ShownValue(const Value& value) {
    if constexpr (std::is_integral_v<Value>) {
        return std::to_string(value);
    } else {
        return std::string_view(value);
    }
}

/// The message `kId` without a line end, for a caller that writes it itself. A value is a text or a
/// whole number; another number of values than the text has places is an error of the build. Counts
/// nothing.
template <auto kId, typename... Values>
std::string MessageText(const Values&... values) {
    constexpr const auto& row = kMessages<decltype(kId)>.at(static_cast<std::size_t>(kId));
    static_assert(std::count(row.text.begin(), row.text.end(), '{') == sizeof...(Values));
    return FillMessage(row.severity, row.text, {ShownValue(values)...});
}

/// Writes the message `kId` and a line end to its stream, in one piece, and counts it by its
/// severity. A value is a text, which holds no NUL, or a whole number.
template <auto kId, typename... Values>
void Report(const Values&... values) {
    constexpr MessageStream stream =
        kMessages<decltype(kId)>.at(static_cast<std::size_t>(kId)).stream;
    static_assert(stream != MessageStream::Part);
    WriteMessage(stream, MessageText<kId>(values...));
}

#endif
