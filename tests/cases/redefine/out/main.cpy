       01 r identified by "r".
        02 t identified by "t".
         03 t1 PIC X(3) identified by "t1".
         03 t2 PIC S9(18) identified by "t2".
        02 u identified by "u".
         03 u2 PIC S9(18) identified by "u2".
        02 s PIC X(3) identified by "s".
        02 g1 PIC S9(18) identified by "g1".
        02 g2 PIC S9(18) identified by "g2".
        02 a1 PIC S9(18) identified by "a1" is attribute.
        02 a2 PIC S9(18) identified by "a2" is attribute.

