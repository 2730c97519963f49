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
    (stream == MessageStream::Output ? std::cout : std::cerr) << line.c_str();
}
