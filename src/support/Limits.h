#ifndef DORVEX_SUPPORT_LIMITS_H
#define DORVEX_SUPPORT_LIMITS_H

#include <chrono>
#include <cstddef>
#include <cstdint>

/// The bounds that keep an input from taking the program's time, memory or stack. Messages that
/// name one are made with it.

/// Levels of elements in a schema file, and of parentheses in a pattern.
inline constexpr std::uint64_t kMaxSchemaDepth = 20'000;
/// Parts of all patterns of a schema file, each repetition counted.
inline constexpr std::uint64_t kMaxPatternParts = 5'000'000;
/// Entities expanded in a file, and the characters that come from them.
inline constexpr std::uint64_t kMaxEntityExpansions = 50'000;
inline constexpr std::uint64_t kMaxEntityText = 20'000'000;
/// Repetitions of a model group in a schema that documents are validated against.
inline constexpr std::uint64_t kMaxGroupRepetitions = 20'000;

/// The time for which a server may send nothing, and what is fetched from one location at most.
inline constexpr std::chrono::seconds kMaxFetchSilence{30};
inline constexpr std::size_t kMaxFetchedBytes = 1UL << 30;

/// Data items and condition names of one record; constructs that the walk to it visits, and how
/// deeply they are nested.
inline constexpr std::uint64_t kMaxRecordItems = 1'000'000;
inline constexpr std::uint64_t kMaxConstructsVisited = 20'000'000;
inline constexpr std::uint64_t kMaxConstructDepth = 10'000;
/// The highest level number of a data item, and that of condition names.
inline constexpr int kMaxItemLevel = 49;
inline constexpr int kConditionNameLevel = 88;

/// The longest answer to a question that is looked at, its end included; of a longer one the rest
/// is passed over, up to the second bound.
inline constexpr std::size_t kMaxAnswerSize = 1024;
inline constexpr std::ptrdiff_t kMaxAnswerRest = 1 << 20;

/// What the stack may grow to. The kernel keeps at least 128 MB of addresses free below its first
/// page.
inline constexpr std::size_t kMaxStackBytes = 120UL * 1024 * 1024;

#endif
