#ifndef DORVEX_COBOL_COMPLAINTS_H
#define DORVEX_COBOL_COMPLAINTS_H

#include <array>

#include "support/Message.h"

/// What record items and their writer have to say.
enum class CobolMessage {
    EmptyItem,
    NamelessRedefinition,
};

template <>
inline constexpr std::array kMessages<CobolMessage> = std::to_array<MessageRow<CobolMessage>>({
    {CobolMessage::EmptyItem, MessageStream::Errors, kWarningSeverity,
     "Unable to convert schema element \"{NAME}\" to COBOL (empty structure)"},
    {CobolMessage::NamelessRedefinition, MessageStream::Errors, kErrorSeverity,
     "Redefines specified, but no COBOL name present"},
});
static_assert(AreInOrder(kMessages<CobolMessage>));

#endif
