#ifndef DORVEX_XMLGEN_IDLEMAPPING_H
#define DORVEX_XMLGEN_IDLEMAPPING_H

#include <string>
#include <vector>

#include "xml/KTXMLElement.h"
#include "xmlgen/KTXMLCOBOLExternalMapping.h"

/// The entries of `mapping`, in file order, whose name is the qualified name of no data item at or
/// below `record`. Items that no output shows count: the entry was meant for something. Takes time
/// in proportion to both, however deep the items are nested. Reports nothing.
std::vector<const CKTXMLCOBOLMapping*> FindIdleEntries(const CKTXMLCOBOLExternalMapping& mapping,
                                                       const CKTXMLElement* record);

/// Says on standard error, uncounted, that the mapping file `name` holds no entries, or which of
/// them match no data item of `record`; of many the first ones and the number of the rest.
void ReportIdleMapping(const std::string& name, const CKTXMLCOBOLExternalMapping& mapping,
                       const CKTXMLElement* record);

#endif
