       01 a PIC S9(18) identified by "a" count in a-count.

