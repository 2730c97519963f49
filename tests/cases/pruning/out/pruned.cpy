       01 r identified by "r".
        02 not-last identified by "not-last".
         03 d PIC S9(18) identified by "d".
        02 good PIC S9(18) identified by "good".

