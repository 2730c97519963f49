       01 r identified by "r".
        02 a PIC S9(18) occurs 3 times identified by "a".
        02 u PIC S9(18) identified by "u".
        02 b PIC S9(18) identified by "b".
        02 c PIC S9(18) identified by "c".
        02 d PIC S9(18) identified by "d".
        02 choice- occurs 4 times.
         03 e PIC S9(18) identified by "e".
         03 sequence- occurs 5 times.
          04 f PIC S9(18) identified by "f".
        02 sequence- occurs 2 times.
         03 g PIC S9(18) identified by "g".
        02 group- occurs 6 times.
         03 sequence- occurs 2 times.
          04 g PIC S9(18) identified by "g".
        02 group- occurs 7 times.
         03 sequence- occurs 2 times.
          04 g PIC S9(18) identified by "g".
        02 all identified by "all".
         03 p PIC S9(18) identified by "p".
         03 q PIC S9(18) identified by "q".
        02 node identified by "node".
         03 v PIC S9(18) identified by "v".
        02 i PIC S9(18) identified by "i" is attribute.
        02 o PIC S9(18) identified by "o" is attribute.

