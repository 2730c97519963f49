// Writes the messages of all rooms, line by line as users read of them: with its severity, and with
// a word in capitals for each value.

#include <algorithm>
#include <iostream>
#include <string>

#include "cobol/Complaints.h"
#include "driver/Complaints.h"
#include "schema/Complaints.h"
#include "support/Complaints.h"
#include "xml/Complaints.h"
#include "xmlgen/Complaints.h"

namespace {

template <typename Id>
void List() {
    for (const MessageRow<Id>& row : kMessages<Id>) {
        std::string line = FillMessage(row.severity, row.text, {});
        std::erase_if(line, [](char c) { return c == '{' || c == '}'; });
        line.erase(
            std::find_if(line.rbegin(), line.rend(), [](char c) { return c != '\n'; }).base(),
            line.end());
        std::cout << line << '\n';
    }
}

}  // namespace

int main() {
    List<SupportMessage>();
    List<XmlMessage>();
    List<CobolMessage>();
    List<SchemaMessage>();
    List<XmlgenMessage>();
    List<DriverMessage>();
    return 0;
}
