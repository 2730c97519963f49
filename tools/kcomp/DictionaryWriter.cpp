// Writes the dictionary into one string, one element a line, in the order of the source. The
// encoding is known when all text is there, so the line that names it is put in front at the end.
// The recursion is bounded by the levels, which rise from an item to those below it. What clauses
// mean was worked out before, and nothing is judged here. An attribute without a text is left out.

#include "kcomp/DictionaryWriter.h"

#include <array>
#include <string_view>

#include "kcomp/Text.h"

namespace {

/// Whether the text is UTF-8 and holds none of the codes beyond ASCII that XML refuses.
bool IsUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i++]);
        std::size_t following = 0;
        if (byte >= 0xF0) {
            following = 3;
        } else if (byte >= 0xE0) {
            following = 2;
        } else if (byte >= 0xC0) {
            following = 1;
        }
        // The bit behind the leading ones is zero, so that the mask may leave it in.
        unsigned long code = byte & (0x7FU >> following);
        const bool leads = byte < 0x80 || (byte >= 0xC2 && byte <= 0xF4);
        if (!leads || text.size() - i < following) {
            return false;
        }
        // A form that is longer than its code needs is no UTF-8.
        constexpr std::array<unsigned long, 4> kLeast = {0, 0x80, 0x800, 0x10000};
        for (std::size_t end = i + following; i < end; ++i) {
            const auto next = static_cast<unsigned char>(text[i]);
            if ((next & 0xC0U) != 0x80U) {
                return false;
            }
            code = code << 6U | (next & 0x3FU);
        }
        // XML takes neither surrogates nor the last two codes of the first plane.
        const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
        if (code < kLeast[following] || code > 0x10FFFF || surrogate || (code & ~1UL) == 0xFFFE) {
            return false;
        }
    }
    return true;
}

/// What no document can hold, or not as it is; it can only come from the name of a file.
bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

std::string_view ElementOf(const DataItem& item) {
    if (item.isGroup) {
        return "group";
    }
    switch (item.category) {
        case Category::Numeric:
            return "numeric";
        case Category::AlphanumericEdited:
            return "alphanumericEdited";
        case Category::NumericEdited:
            return "numericEdited";
        case Category::National:
            return "national";
        default:
            return "alphanumeric";
    }
}

/// In the order of Usage. DISPLAY is what an item has that says nothing.
std::string_view UsageOf(const DataItem& item) {
    constexpr std::array<std::string_view, 13> kTexts = {
        "",      "",        "comp-1",   "comp-2", "comp-3", "comp-4",           "comp-5",
        "index", "pointer", "national", "comp-x", "comp-6", "procedure-pointer"};
    // A group only hands its usage down.
    return item.isGroup ? "" : kTexts.at(static_cast<std::size_t>(item.usage));
}

/// In the order of SignPosition. A sign within the last digit needs no clause.
std::string_view SignOf(const DataItem& item) {
    constexpr std::array<std::string_view, 5> kTexts = {"", "li", "ls", "", "ts"};
    return item.isGroup ? "" : kTexts.at(static_cast<std::size_t>(item.sign));
}

class CKTDictionaryWriter {
public:
    std::string Write(const std::deque<ProgramData>& programs) {
        Open("dataDictionary");
        for (const ProgramData& program : programs) {
            WriteProgram(program);
        }
        Close("dataDictionary");
        // Any bytes can be read as ISO-8859-1, so one of the two always fits.
        const std::string encoding = IsUtf8(m_sText) ? "UTF-8" : "ISO-8859-1";
        return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\n" + m_sText;
    }

private:
    void WriteProgram(const ProgramData& program) {
        Open("program", program.name);
        for (std::size_t i = 0; i < program.areas.size(); ++i) {
            const RecordArea& area = program.areas[i];
            // Areas of one kind that follow each other share a container.
            const bool first = i == 0 || program.areas[i - 1].isFile != area.isFile;
            const bool last =
                i + 1 == program.areas.size() || program.areas[i + 1].isFile != area.isFile;
            const std::string_view container = area.isFile ? "fileSection" : "dataItems";
            if (first) {
                Open(container);
            }
            if (area.isFile) {
                Open("fd", area.name);
            }
            for (const auto& item : area.items) {
                WriteItem(*item);
            }
            if (area.isFile) {
                Close("fd");
            }
            if (last) {
                Close(container);
            }
        }
        Close("program");
    }

    /// Nests no deeper than levels do.
    void WriteItem(const DataItem& item) {
        // A constant takes up no storage and stands beside the records, wherever it was written.
        if (item.isConstant) {
            WriteConstant(item);
            return;
        }
        const std::string_view element = ElementOf(item);
        Begin(element);
        WriteClauses(item);
        if (item.children.empty()) {
            m_sText += "/>\n";
            return;
        }
        m_sText += ">\n";
        ++m_nDepth;
        for (const auto& child : item.children) {
            if (child->level == kConditionLevel) {
                // Its values are compared with the item above it, whose category they go by.
                WriteCondition(*child, item);
            } else {
                WriteItem(*child);
            }
        }
        Close(element);
    }

    void WriteClauses(const DataItem& item) {
        const bool numeric = !item.isGroup && item.category == Category::Numeric;
        const bool national = !item.isGroup && item.category == Category::National;
        const Picture& description = item.description;
        // The length counts bytes, of which a national character has two.
        const std::size_t positions = description.length * (national ? 2 : 1);
        Attribute("name", item.name.empty() ? "filler" : item.name);
        Attribute("level", (item.level < 10 ? "0" : "") + std::to_string(item.level));
        Attribute("redefines", item.redefines.empty() ? "" : "true");
        Attribute("redefinedItem", item.redefines);
        Attribute("renames", item.renames + (item.renamesThrough.empty() ? "" : " THRU ") +
                                 item.renamesThrough);
        Attribute("picture", item.picture);
        Attribute("usage", UsageOf(item));
        Attribute("length", numeric ? "" : Number(positions));
        Attribute("digits", numeric ? Number(description.digits) : "");
        Attribute("alignment", numeric ? Number(description.decimals) : "");
        Attribute("sign", SignOf(item));
        Attribute("justified", item.justified ? "right" : "");
        Attribute("blankWhenZero", item.blankWhenZero ? "true" : "");
        Attribute("minOccurs", item.minOccurs);
        Attribute("maxOccurs", item.maxOccurs);
        Attribute("odo", item.odo);
        // One at most: several values belong to a condition-name, which is written apart.
        if (!item.values.empty()) {
            Attribute("value", item.values.front().value);
        }
        WriteNotes(item);
    }

    void WriteCondition(const DataItem& condition, const DataItem& item) {
        // A group is compared as text, whatever its items hold.
        const bool numeric = !item.isGroup && item.category == Category::Numeric;
        const std::string kind = numeric ? "numeric" : "alphanumeric";
        Begin(kind + "Condition");
        Attribute("name", condition.name);
        WriteNotes(condition);
        m_sText += ">\n";
        ++m_nDepth;
        for (const ItemValue& value : condition.values) {
            const bool range = !value.through.empty();
            Begin(kind + (range ? "Range" : "Constant"));
            Attribute(range ? "from" : "value", value.value);
            Attribute("to", value.through);
            m_sText += "/>\n";
        }
        Close(kind + "Condition");
    }

    void WriteConstant(const DataItem& constant) {
        const std::string& value = constant.values.front().value;
        // Literals have their quotation marks, and figurative constants have other letters.
        const bool numeric = value.find_first_not_of("0123456789+-.,Ee") == std::string::npos;
        Begin(numeric ? "numericConstant" : "alphanumericConstant");
        Attribute("name", constant.name);
        Attribute("value", value);
        WriteNotes(constant);
        m_sText += "/>\n";
    }

    void WriteNotes(const DataItem& item) {
        for (const auto& [attribute, text] : item.notes) {
            Attribute(attribute, text);
        }
    }

    /// Zero says no more than a missing attribute does.
    static std::string Number(std::size_t number) {
        return number == 0 ? std::string() : std::to_string(number);
    }

    void Begin(std::string_view element) {
        m_sText.append(2 * m_nDepth, ' ');
        m_sText += '<';
        m_sText += element;
    }

    void Open(std::string_view element, std::string_view name = {}) {
        Begin(element);
        Attribute("name", name);
        m_sText += ">\n";
        ++m_nDepth;
    }

    void Close(std::string_view element) {
        --m_nDepth;
        Begin("/");
        m_sText += element;
        m_sText += ">\n";
    }

    /// An empty text stands for a clause that is not there.
    void Attribute(std::string_view name, std::string_view text) {
        if (text.empty()) {
            return;
        }
        m_sText += ' ';
        m_sText += name;
        m_sText += "=\"";
        // Between double quotation marks these are all that have to be escaped.
        for (const char c : text) {
            switch (c) {
                case '&':
                    m_sText += "&amp;";
                    break;
                case '<':
                    m_sText += "&lt;";
                    break;
                case '"':
                    m_sText += "&quot;";
                    break;
                default:
                    m_sText += IsControl(c) ? '?' : c;
            }
        }
        m_sText += '"';
    }

    std::string m_sText;
    std::size_t m_nDepth = 0;
};

}  // namespace

std::string DictionaryOf(const std::deque<ProgramData>& programs) {
    return CKTDictionaryWriter().Write(programs);
}
