#ifndef DORVEX_KCOMP_LEFTOUT_H
#define DORVEX_KCOMP_LEFTOUT_H

#include <deque>

#include "kcomp/DataItem.h"
#include "kcomp/Report.h"

/// Writes one note for each kind of thing in the source that nothing made from the dictionary will
/// hold, at the place where the first of its kind stands. Clauses come in a fixed order, comments
/// last. Notes are no complaints, so they do not change the exit status.
void NoteWhatIsLeftOut(const std::deque<ProgramData>& programs, CKTReport& report);

#endif
