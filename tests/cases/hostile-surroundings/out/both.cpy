       01 r PIC S9(18) identified by "r" count in r-count.

