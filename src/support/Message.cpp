// Puts values into the texts of the message tables and hands whole lines to the counting output
// operator. A value is never searched for places, so it may hold braces. Which message goes where
// is settled in the tables; counting, banner and flushing are left to the operator.

#include "support/Message.h"

#include <iostream>

#include "support/Console.h"

std::string FillMessage(std::string_view severity, std::string_view text,
                        std::initializer_list<std::string_view> values) {
    std::string line(severity);
    if (!severity.empty()) {
        line += ' ';
    }
    for (const std::string_view value : values) {
        const std::size_t place = text.find('{');
        line += text.substr(0, place);
        line += value;
        text.remove_prefix(text.find('}', place) + 1);
    }
    line += text;
    return line;
}

void WriteMessage(MessageStream stream, std::string line) {
    line += '\n';
    // As a plain character string: a string object would pass by the counting operator.
    (stream == MessageStream::Output ? std::cout : std::cerr) << line.c_str();
}
