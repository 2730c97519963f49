       01 r identified by "r".
        02 old PIC S9(18) identified by "old".
        02 group- occurs 2 times.
         03 here PIC S9(18) identified by "here".
        02 restricted identified by "restricted".
         03 c PIC S9(18) identified by "c".

