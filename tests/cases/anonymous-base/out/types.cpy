       01 r identified by "r".
        02 outer-size PIC X(4) identified by "outer-size".
        02 inner-size PIC X(9) identified by "inner-size".
        02 outer-values PIC X(2) identified by "outer-values".
         88 enumerator-0 value is "A".

