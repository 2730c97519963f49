// The messages of this room, each with its severity and its stream in one place.

#include "cobol/Complaints.h"

#include <iostream>

#include "support/Console.h"
#include "support/Severity.h"

void ReportEmptyItem(std::string_view dataName) {
    WriteLine(std::cerr, {kWarningSeverity, " Unable to convert schema element \"", dataName,
                          "\" to COBOL (empty structure)"});
}

void ReportNamelessRedefinition() {
    WriteLine(std::cerr, {kErrorSeverity, " Redefines specified, but no COBOL name present"});
}
