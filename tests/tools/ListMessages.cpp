// Writes the messages of all rooms and of the stand-in for the compiler, line by line as users read
// of them: with its severity, and with a word in capitals for each value.

#include <algorithm>
#include <iostream>
#include <string>

#include "cobol/Complaints.h"
#include "driver/Complaints.h"
#include "kcomp/Messages.h"
#include "schema/Complaints.h"
#include "support/Complaints.h"
#include "xml/Complaints.h"
#include "xmlgen/Complaints.h"

namespace {

void WriteLine(std::string line) {
    std::erase_if(line, [](char c) { return c == '{' || c == '}'; });
    line.erase(std::find_if(line.rbegin(), line.rend(), [](char c) { return c != '\n'; }).base(),
               line.end());
    std::cout << line << '\n';
}

template <typename Id>
void List() {
    for (const MessageRow<Id>& row : kMessages<Id>) {
        WriteLine(FillMessage(row.severity, row.text, {}));
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
    for (const TextRow& row : kTextRows) {
        WriteLine(std::string(row.text));
    }
    return 0;
}
