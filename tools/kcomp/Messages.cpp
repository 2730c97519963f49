// Fills the places of a message from left to right. What stands in the braces tells a reader of the
// table what comes there and is dropped; that the values are as many is checked at compile time.

#include "kcomp/Messages.h"

CKTMessageText CKTMessageText::Fill(std::string_view text,
                                    std::initializer_list<std::string_view> values) {
    std::string filled;
    for (const std::string_view value : values) {
        const std::size_t place = text.find('{');
        filled += text.substr(0, place);
        filled += value;
        text.remove_prefix(text.find('}', place) + 1);
    }
    filled += text;
    return CKTMessageText(std::move(filled));
}
