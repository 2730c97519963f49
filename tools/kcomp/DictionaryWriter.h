#ifndef DORVEX_KCOMP_DICTIONARYWRITER_H
#define DORVEX_KCOMP_DICTIONARYWRITER_H

#include <deque>
#include <string>

#include "kcomp/DataItem.h"

/// Returns the data dictionary of `programs`, in their order, as an XML document. It is in UTF-8
/// when all names and values are, otherwise in ISO-8859-1, and says which. All records have to be
/// complete and without faults; nothing is reported.
std::string DictionaryOf(const std::deque<ProgramData>& programs);

#endif
