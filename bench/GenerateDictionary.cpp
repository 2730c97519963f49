// Writes the inputs of the benchmark for COBOL sources to standard output. The same arguments
// always give the same bytes.
//
//     generate_dictionary dictionary N   a data dictionary: one record of N items in groups of 50
//     generate_dictionary mapping N      a mapping file: an entry for each item, none for a group

#include <array>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t kGroupSize = 50;

struct Form {
    std::string_view element;
    std::string_view attributes;
    std::string_view type;
};

constexpr std::array<Form, 5> kForms{{
    {"numeric", R"-( digits="6" picture="9(6)")-", "integer"},
    {"alphanumeric", R"-( length="20" picture="X(20)")-", "string"},
    {"numeric", R"-( usage="comp-3" digits="9" alignment="2" picture="S9(7)V99" sign="ls")-",
     "decimal"},
    {"alphanumeric", R"-( length="8" picture="X(8)" justified="right")-", "string"},
    {"numericEdited", R"-( length="9" picture="ZZ,ZZ9.99" blankWhenZero="true")-", "string"},
}};

std::string GroupName(std::size_t item) {
    return "GROUP-" + std::to_string(item / kGroupSize);
}
std::string ItemName(std::size_t item) {
    return "ITEM-" + std::to_string(item);
}

void WriteDictionary(std::size_t items) {
    std::cout << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                 "<program name=\"BENCH\">\n<dataItems>\n<group name=\"RECORD\">\n";
    for (std::size_t item = 0; item < items; ++item) {
        if (item % kGroupSize == 0) {
            std::cout << (item == 0 ? "" : "</group>\n") << "<group name=\"" << GroupName(item)
                      << "\">\n";
        }
        const Form& form = kForms.at(item % kForms.size());
        std::cout << "<" << form.element << " name=\"" << ItemName(item) << "\"" << form.attributes
                  << "/>\n";
    }
    std::cout << "</group>\n</group>\n</dataItems>\n</program>\n";
}

void WriteEntry(const std::string& name, const std::string& xmlName, std::string_view type) {
    std::cout << "   <xml-cobol-mapping>\n      <cobol-name>" << name
              << "</cobol-name>\n      <cobol-count-in>true</cobol-count-in>\n      "
                 "<xml-name>"
              << xmlName << "</xml-name>\n      <xml-type>" << type
              << "</xml-type>\n      <xml-attribute>false</xml-attribute>\n"
                 "      <xml-namespace></xml-namespace>\n   </xml-cobol-mapping>\n";
}

void WriteMapping(std::size_t items) {
    std::cout << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xml-cobol-mapping-file>\n";
    WriteEntry("RECORD", "RECORD", "group");
    for (std::size_t item = 0; item < items; ++item) {
        WriteEntry("RECORD." + GroupName(item) + "." + ItemName(item), ItemName(item) + "-x",
                   kForms.at(item % kForms.size()).type);
    }
    std::cout << "</xml-cobol-mapping-file>\n";
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::string_view kind = argc == 3 ? argv[1] : "";
    const std::size_t items = argc == 3 ? std::strtoul(argv[2], nullptr, 10) : 0;
    if (kind == "dictionary") {
        WriteDictionary(items);
    } else if (kind == "mapping") {
        WriteMapping(items);
    } else {
        std::cerr << "usage: generate_dictionary dictionary|mapping N\n";
        return 1;
    }
    return std::cout.flush() ? 0 : 1;
}
