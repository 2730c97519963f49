// Writes the inputs of the benchmark to standard output. The same arguments always give the same
// bytes.
//
//     generate types N               N global elements, each with a named type of 4 local elements
//     generate refs N                the same, and a root element that refers to all of them
//     generate repeat N              one record of N items with 50 distinct names
//     generate record N              one record of N items in groups of 100, every name once
//     generate shared N              the same, but the groups share 20 named types
//     generate document N SCHEMA     a document of N megabytes that names SCHEMA as its schema
//     generate document-schema       the schema of that document

#include <algorithm>
#include <array>
#include <exception>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct LocalType {
    std::string_view base;
    std::string_view facet;
    int value;
    std::string_view secondFacet;
    int secondValue;
};

constexpr std::array<LocalType, 17> kLocalTypes{{
    {"string", "maxLength", 35, "", 0},
    {"int", "", 0, "", 0},
    {"decimal", "totalDigits", 11, "fractionDigits", 2},
    {"date", "", 0, "", 0},
    {"token", "maxLength", 12, "", 0},
    {"boolean", "", 0, "", 0},
    {"string", "length", 10, "", 0},
    {"unsignedInt", "totalDigits", 6, "", 0},
    {"dateTime", "", 0, "", 0},
    {"normalizedString", "minLength", 1, "maxLength", 70},
    {"integer", "totalDigits", 8, "", 0},
    {"double", "", 0, "", 0},
    {"NMTOKEN", "maxLength", 8, "", 0},
    {"positiveInteger", "", 0, "", 0},
    {"decimal", "totalDigits", 15, "fractionDigits", 4},
    {"anyURI", "", 0, "", 0},
    {"string", "", 0, "", 0},
}};

constexpr std::array<std::string_view, 50> kWords{
    "account", "address", "agent",    "amount",   "area",     "article",  "balance", "bank",
    "batch",   "branch",  "buyer",    "carrier",  "category", "charge",   "city",    "claim",
    "code",    "contact", "country",  "credit",   "currency", "date",     "debit",   "deposit",
    "detail",  "dispute", "district", "document", "entry",    "fee",      "grade",   "holder",
    "invoice", "item",    "journal",  "ledger",   "limit",    "location", "note",    "order",
    "owner",   "party",   "period",   "price",    "product",  "rate",     "region",  "status",
    "term",    "unit"};

std::string Numbered(std::string_view word, std::size_t number) {
    std::ostringstream text;
    text << word << '_' << std::setw(6) << std::setfill('0') << number;
    return text.str();
}

std::string NameOf(std::size_t number) {
    return Numbered(kWords[number % kWords.size()], number);
}

std::string Indent(std::size_t depth) {
    return std::string(2 * depth, ' ');
}

void OpenSchema(std::ostream& out, std::string_view subject) {
    out << R"(<?xml version="1.0" encoding="UTF-8"?>)" << '\n'
        << R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns:t="urn:bench:)"
        << subject << R"(" targetNamespace="urn:bench:)" << subject
        << R"(" elementFormDefault="qualified">)" << '\n';
}

void CloseSchema(std::ostream& out) {
    out << "</xs:schema>\n";
}

void WriteFacet(std::ostream& out, std::string_view facet, int value) {
    if (!facet.empty()) {
        out << "<xs:" << facet << " value=\"" << value << "\"/>";
    }
}

std::string_view Occurrence(std::size_t number) {
    if (number % 16 == 15) {
        return R"( maxOccurs="5")";
    }
    return number % 3 == 2 ? R"( minOccurs="0")" : "";
}

void WriteLeaf(std::ostream& out, std::size_t depth, std::string_view name, std::size_t number) {
    const LocalType& type = kLocalTypes[number % kLocalTypes.size()];
    out << Indent(depth) << "<xs:element name=\"" << name << '"';
    if (type.facet.empty()) {
        out << " type=\"xs:" << type.base << '"' << Occurrence(number) << "/>\n";
        return;
    }
    out << Occurrence(number) << ">\n"
        << Indent(depth + 1) << "<xs:simpleType><xs:restriction base=\"xs:" << type.base << "\">";
    WriteFacet(out, type.facet, type.value);
    WriteFacet(out, type.secondFacet, type.secondValue);
    out << "</xs:restriction></xs:simpleType>\n" << Indent(depth) << "</xs:element>\n";
}

void OpenGroup(std::ostream& out, std::size_t depth, std::string_view name) {
    out << Indent(depth) << "<xs:element name=\"" << name << "\">\n"
        << Indent(depth + 1) << "<xs:complexType>\n"
        << Indent(depth + 2) << "<xs:sequence>\n";
}

void CloseGroup(std::ostream& out, std::size_t depth) {
    out << Indent(depth + 2) << "</xs:sequence>\n"
        << Indent(depth + 1) << "</xs:complexType>\n"
        << Indent(depth) << "</xs:element>\n";
}

void WriteNamedType(std::ostream& out, std::size_t type, std::size_t locals) {
    out << "  <xs:complexType name=\"" << Numbered("Type", type) << "\">\n    <xs:sequence>\n";
    for (std::size_t local = 0; local < locals; ++local) {
        const std::size_t number = type * locals + local;
        WriteLeaf(out, 3, NameOf(number), number);
    }
    out << "    </xs:sequence>\n  </xs:complexType>\n";
}

void WriteTypedElement(std::ostream& out, std::size_t depth, const std::string& name,
                       std::size_t type) {
    out << Indent(depth) << "<xs:element name=\"" << name
        << "\" type=\"t:" << Numbered("Type", type) << "\"/>\n";
}

// The types stand before the elements that name them: the library looks for a type that it has not
// met yet in all global declarations, one after the other.
void WriteTypesAndElements(std::ostream& out, std::size_t count) {
    for (std::size_t type = 0; type < count; ++type) {
        WriteNamedType(out, type, 4);
    }
    for (std::size_t element = 0; element < count; ++element) {
        WriteTypedElement(out, 1, Numbered("Record", element), element);
    }
}

void WriteTypes(std::ostream& out, std::size_t count) {
    OpenSchema(out, "types");
    WriteTypesAndElements(out, count);
    CloseSchema(out);
}

void WriteRefs(std::ostream& out, std::size_t count) {
    OpenSchema(out, "refs");
    WriteTypesAndElements(out, count);
    OpenGroup(out, 1, "Root");
    for (std::size_t element = 0; element < count; ++element) {
        out << Indent(4) << "<xs:element ref=\"t:" << Numbered("Record", element) << "\"/>\n";
    }
    CloseGroup(out, 1);
    CloseSchema(out);
}

// How many items a group of this height can hold when no type has more children than there are
// words.
std::size_t Capacity(std::size_t height) {
    std::size_t items = 1;
    for (std::size_t level = 0; level < height; ++level) {
        items = 1 + kWords.size() * items;
    }
    return items;
}

void WriteRepeating(std::ostream& out, std::size_t depth, std::string_view name, std::size_t items,
                    std::size_t height) {
    if (items == 1) {
        WriteLeaf(out, depth, name, name.size() + depth);
        return;
    }
    OpenGroup(out, depth, name);
    std::size_t left = items - 1;
    for (std::size_t child = 0; left > 0; ++child) {
        const std::size_t share = std::min(left, Capacity(height - 1));
        WriteRepeating(out, depth + 3, kWords[child], share, height - 1);
        left -= share;
    }
    CloseGroup(out, depth);
}

void WriteRepeat(std::ostream& out, std::size_t count) {
    std::size_t height = 1;
    while (Capacity(height) < count) {
        ++height;
    }
    OpenSchema(out, "repeat");
    WriteRepeating(out, 1, kWords.back(), count, height);
    CloseSchema(out);
}

void WriteRecord(std::ostream& out, std::size_t count) {
    constexpr std::size_t kGroupSize = 100;
    OpenSchema(out, "record");
    OpenGroup(out, 1, "Record");
    std::size_t number = 1;
    while (number < count) {
        OpenGroup(out, 4, Numbered("group", number++));
        for (std::size_t field = 0; field < kGroupSize && number < count; ++field, ++number) {
            WriteLeaf(out, 7, NameOf(number), number);
        }
        CloseGroup(out, 4);
    }
    CloseGroup(out, 1);
    CloseSchema(out);
}

// The library keeps local declarations in a fixed number of chains, so a schema with very many of
// them loads slowly. Shared types give a long record from a short schema.
void WriteShared(std::ostream& out, std::size_t count) {
    constexpr std::size_t kTypes = 20;
    constexpr std::size_t kGroupSize = 100;
    OpenSchema(out, "shared");
    for (std::size_t type = 0; type < kTypes; ++type) {
        WriteNamedType(out, type, kGroupSize);
    }
    OpenGroup(out, 1, "Record");
    std::size_t left = count - 1;
    for (std::size_t group = 0; left > kGroupSize; ++group) {
        WriteTypedElement(out, 4, Numbered("group", group), group % kTypes);
        left -= kGroupSize + 1;
    }
    for (; left > 0; --left) {
        WriteLeaf(out, 4, Numbered("single", left), left);
    }
    CloseGroup(out, 1);
    CloseSchema(out);
}

constexpr std::string_view kDocumentSchema = R"(<?xml version="1.0" encoding="UTF-8"?>
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns="urn:bench:orders"
           targetNamespace="urn:bench:orders" elementFormDefault="qualified">
  <xs:simpleType name="Key">
    <xs:restriction base="xs:string"><xs:pattern value="[A-Z][0-9]{6}"/></xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="Text">
    <xs:restriction base="xs:string"><xs:maxLength value="70"/></xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="Amount">
    <xs:restriction base="xs:decimal"><xs:totalDigits value="11"/><xs:fractionDigits value="2"/></xs:restriction>
  </xs:simpleType>
  <xs:simpleType name="Priority">
    <xs:restriction base="xs:token"><xs:enumeration value="low"/><xs:enumeration value="normal"/><xs:enumeration value="high"/></xs:restriction>
  </xs:simpleType>
  <xs:complexType name="Customer">
    <xs:sequence>
      <xs:element name="name" type="Text"/>
      <xs:element name="street" type="Text"/>
      <xs:element name="city" type="Text"/>
    </xs:sequence>
    <xs:attribute name="number" type="Key" use="required"/>
    <xs:attribute name="country" type="xs:NMTOKEN"/>
  </xs:complexType>
  <xs:complexType name="Line">
    <xs:sequence>
      <xs:element name="article" type="Key"/>
      <xs:element name="text" type="Text"/>
      <xs:element name="quantity" type="xs:positiveInteger"/>
      <xs:element name="price" type="Amount"/>
    </xs:sequence>
    <xs:attribute name="number" type="xs:positiveInteger" use="required"/>
    <xs:attribute name="unit" type="xs:NMTOKEN" default="pcs"/>
  </xs:complexType>
  <xs:complexType name="Order">
    <xs:sequence>
      <xs:element name="customer" type="Customer"/>
      <xs:element name="note" type="Text" minOccurs="0"/>
      <xs:element name="line" type="Line" maxOccurs="unbounded"/>
      <xs:element name="total" type="Amount"/>
    </xs:sequence>
    <xs:attribute name="number" type="Key" use="required"/>
    <xs:attribute name="date" type="xs:date" use="required"/>
    <xs:attribute name="priority" type="Priority"/>
  </xs:complexType>
  <xs:element name="orders">
    <xs:complexType>
      <xs:sequence><xs:element name="order" type="Order" minOccurs="0" maxOccurs="unbounded"/></xs:sequence>
    </xs:complexType>
  </xs:element>
</xs:schema>
)";

std::string Key(char kind, std::size_t number) {
    std::ostringstream text;
    text << kind << std::setw(6) << std::setfill('0') << number % 1000000;
    return text.str();
}

std::string Amount(std::size_t cents) {
    std::ostringstream text;
    text << cents / 100 << '.' << std::setw(2) << std::setfill('0') << cents % 100;
    return text.str();
}

void WriteOrderLine(std::ostream& out, std::size_t line, std::size_t article, std::size_t cents) {
    out << "    <line number=\"" << line << "\" unit=\"" << (article % 5 == 0 ? "kg" : "pcs")
        << "\">\n      <article>" << Key('A', article) << "</article>\n      <text>"
        << kWords[article % kWords.size()] << " &amp; " << kWords[article / 7 % kWords.size()]
        << ", gr\xc3\xb6\xc3\x9f"
           "e "
        << article % 60 << "</text>\n      <quantity>" << 1 + article % 40
        << "</quantity>\n      <price>" << Amount(cents) << "</price>\n    </line>\n";
}

std::string OrderText(std::size_t number) {
    constexpr std::array<std::string_view, 3> kPriorities{"low", "normal", "high"};
    std::ostringstream out;
    out << "  <order number=\"" << Key('O', number) << "\" date=\"2024-" << std::setfill('0')
        << std::setw(2) << 1 + number % 12 << '-' << std::setw(2) << 1 + number % 28
        << "\" priority=\"" << kPriorities[number % kPriorities.size()]
        << "\">\n    <customer number=\"" << Key('C', number * 7)
        << "\" country=\"DE\">\n      <name>" << kWords[number % kWords.size()]
        << " and sons</name>\n      <street>" << kWords[number / 3 % kWords.size()] << " street "
        << number % 250 << "</street>\n      <city>" << kWords[number / 11 % kWords.size()]
        << "</city>\n    </customer>\n";
    if (number % 4 == 0) {
        out << "    <note>to be delivered before noon to the " << kWords[number / 5 % kWords.size()]
            << " office</note>\n";
    }
    std::size_t total = 0;
    for (std::size_t line = 1; line <= 1 + number % 8; ++line) {
        const std::size_t cents = 199 + (number * 131 + line * 977) % 90000;
        WriteOrderLine(out, line, number * 3 + line, cents);
        total += cents;
    }
    out << "    <total>" << Amount(total) << "</total>\n  </order>\n";
    return out.str();
}

void WriteDocument(std::ostream& out, std::size_t megabytes, std::string_view schema) {
    out << R"(<?xml version="1.0" encoding="UTF-8"?>)" << '\n'
        << R"(<orders xmlns="urn:bench:orders" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance")"
        << R"( xsi:schemaLocation="urn:bench:orders )" << schema << "\">\n";
    std::size_t written = 0;
    for (std::size_t number = 0; written < megabytes * 1000000; ++number) {
        const std::string order = OrderText(number);
        out << order;
        written += order.size();
    }
    out << "</orders>\n";
}

void Generate(std::ostream& out, const std::vector<std::string>& arguments) {
    using Writer = void (*)(std::ostream&, std::size_t);
    static const std::map<std::string, Writer> kSchemas{{"types", WriteTypes},
                                                        {"refs", WriteRefs},
                                                        {"repeat", WriteRepeat},
                                                        {"record", WriteRecord},
                                                        {"shared", WriteShared}};
    const std::string kind = arguments.empty() ? "" : arguments[0];
    if (kind == "document-schema" && arguments.size() == 1) {
        out << kDocumentSchema;
    } else if (kind == "document" && arguments.size() == 3) {
        WriteDocument(out, std::stoul(arguments[1]), arguments[2]);
    } else if (const auto schema = kSchemas.find(kind);
               schema != kSchemas.end() && arguments.size() == 2) {
        schema->second(out, std::stoul(arguments[1]));
    } else {
        throw std::invalid_argument(
            "usage: generate types|refs|repeat|record|shared N"
            " | document N SCHEMA | document-schema");
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    try {
        Generate(std::cout, {argv + 1, argv + argc});
        if (!std::cout.flush()) {
            throw std::runtime_error("the output cannot be written");
        }
    } catch (const std::exception& problem) {
        std::cerr << "generate: " << problem.what() << '\n';
        return 1;
    }
    return 0;
}
