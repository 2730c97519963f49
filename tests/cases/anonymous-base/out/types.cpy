       01 r identified by "r".
        02 outer-size PIC X(4) identified by "outer-size".
        02 inner-size PIC X(4) identified by "inner-size".
        02 outer-values identified by "outer-values".
         88 enumerator-0 value is "A".
         03 outer-values-value PIC X(2).

