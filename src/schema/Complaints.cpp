// The messages of this room, each with its severity and its stream in one place.

#include "schema/Complaints.h"

#include <iostream>
#include <string>

#include "support/Console.h"
#include "support/Limits.h"
#include "support/Severity.h"

namespace {

constexpr std::string_view kElementLost = "  Element will not be converted to COBOL record item.";
constexpr std::string_view kRecordLost = "  Record will not be converted.";
constexpr std::string_view kNotSupported = " This version of DORVEX does not support ";

std::string_view WhiteSpaceEffect(std::string_view value) {
    if (value == "preserve") {
        return "No normalization is done, the value is not changed (this is the behavior required "
               "by  [XML 1.0 (Second Edition)] for element content)";
    }
    if (value == "replace") {
        return "All occurrences of #x9 (tab), #xA (line feed) and #xD (carriage return) are "
               "replaced with #x20 (space)";
    }
    if (value == "collapse") {
        return "After the processing implied by replace, contiguous sequences of #x20's are "
               "collapsed to a  single #x20, and leading and trailing #x20's are removed";
    }
    return {};
}

}  // namespace

void ReportMissingDocument() {
    WriteLine(std::cerr, {kInternalErrorSeverity, " Error initializing schema document\n"});
}

void ReportMissingSchema() {
    WriteLine(std::cerr, {kInternalErrorSeverity, " Unable to locate schema element\n"});
}

void ReportQualifiedAttributes() {
    WriteLine(std::cerr, {kErrorSeverity,
                          " COBOL XML does not support namespace qualifiers for attributes"
                          " in instance documents"});
}

void ReportNoHead() {
    WriteLine(std::cerr, {kErrorSeverity,
                          " No schema head element found in schema definition. A non-referenced\n"
                          " global head element is required for conversion to COBOL record"});
}

void ReportSeveralHeads() {
    WriteLine(std::cerr, {kWarningSeverity,
                          " More than one head element was found in the schema definition. "
                          "Attempting to generate multiple file definitions"});
}

void ReportUndeclaredHead(std::string_view name) {
    WriteLine(std::cerr, {kErrorSeverity, " Head element \"", name,
                          "\" is not declared.  Element will not be converted."});
}

void ReportTooManyItems(std::string_view record) {
    WriteLine(std::cerr, {kErrorSeverity, " Record \"", record, kTooManyRecordItems, kRecordLost});
}

void ReportTooComplex(std::string_view record) {
    WriteLine(std::cerr,
              {kErrorSeverity, " Record \"", record, "\" is too complex to convert.", kRecordLost});
}

void ReportConverted(std::size_t written, std::size_t heads) {
    WriteLine(std::cerr, {"Successfully converted ", std::to_string(written), " of ",
                          std::to_string(heads), " schema head element(s)."});
}

void ReportMissingReference(std::string_view reference) {
    WriteLine(std::cerr,
              {kErrorSeverity, " Cannot find referenced element ", reference, ".", kElementLost});
}

void ReportMissingAttribute(std::string_view reference) {
    WriteLine(std::cerr, {kErrorSeverity, " Cannot find group reference ", reference});
}

void ReportMissingMember(std::string_view type) {
    WriteLine(std::cerr,
              {kErrorSeverity, " Unable to locate type ", type, " for <union> processing"});
}

void ReportUnsupportedType(std::string_view type) {
    WriteLine(std::cerr, {kWarningSeverity, " An unsupported type ", type, " has been referenced.",
                          kElementLost});
}

void ReportRecursion(std::string_view reference) {
    WriteLine(std::cerr, {kErrorSeverity, " Cannot convert recursive reference of ", reference,
                          " to COBOL record"});
}

void ReportUnconstrainedType(std::string_view declaration) {
    WriteLine(std::cerr, {kWarningSeverity, " Cannot convert unconstrained type \"", declaration,
                          "\" to a valid COBOL data item. An XML Schema element requires a "
                          "type=\"...\" attribute for successful conversion."});
}

void ReportSubstitutionGroup() {
    WriteLine(std::cerr, {kWarningSeverity, " substitionGroup encountered"});
}

void ReportWildcard() {
    WriteLine(std::cerr, {kWarningSeverity,
                          " Unsupported element <any> or <anyAttribute> encountered. Element "
                          "will not be converted into COBOL xd."});
}

void ReportLostList(std::string_view base) {
    WriteLine(std::cerr, {kWarningSeverity, kNotSupported, "list types.  The value of \"", base,
                          "\" is left out."});
}

void ReportTooDeep(std::string_view name) {
    WriteLine(std::cerr, {kWarningSeverity, " Element \"", name, kTooDeepForCobol, kElementLost});
}

void ReportPattern(std::string_view item) {
    WriteLine(std::cerr,
              {kWarningSeverity, kNotSupported, "the <pattern> element facet for element ", item});
}

void ReportRange(std::string_view facet, std::string_view item) {
    WriteLine(std::cerr,
              {kWarningSeverity, kNotSupported, "the ", facet, " facet for the element ", item});
}

void ReportWhiteSpace(std::string_view value, std::string_view item) {
    static constexpr std::string_view kMet = " Whitespace facet encountered";
    WriteLine(std::cerr, {kWarningSeverity, kMet, " ", kWarningSeverity, kMet, " for element ",
                          item, " - ", WhiteSpaceEffect(value)});
}
