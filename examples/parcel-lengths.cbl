identification division.
program-id. parcel-lengths.
*> Prints how long the fields of a parcel are. In free format; the record
*> is parcel.cpy without its XML clauses.
data division.
working-storage section.
copy "plain-parcel.cpy".
procedure division.
    display "parcel      " length of parcel
    display "weight-kg   " length of weight-kg
    display "recipient   " length of recipient
    display "visit       " length of visit
    display "trackingNo  " length of trackingNo
    move 12.345 to weight-kg
    display "12.345 kg   " weight-kg
    stop run.
