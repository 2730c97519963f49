       01 r identified by "r".
        02 ext identified by "ext".
         03 b PIC S9(18) identified by "b".
         03 ba PIC S9(18) identified by "ba" is attribute.
         03 e PIC S9(18) identified by "e".
         03 ea PIC S9(18) identified by "ea" is attribute.
        02 res identified by "res".
         03 b PIC S9(18) identified by "b".
        02 alike identified by "alike".
         03 b PIC S9(18) identified by "b".
         03 ba PIC S9(18) identified by "ba" is attribute.
        02 wide identified by "wide".
         03 k PIC S9(18) identified by "k".
        02 taxed identified by "taxed".
         03 taxed-value PIC S9(7)V9(2).
         03 cur PIC X(80) identified by "cur" is attribute.
         03 tax PIC S9(18) identified by "tax" is attribute.
        02 cheap identified by "cheap".
         03 cheap-value PIC S9(3)V9(2).
         03 cur PIC X(80) identified by "cur" is attribute.
        02 coded identified by "coded".
         03 coded-value PIC X(80).
         88 enumerator-0 value is "A".
         88 enumerator-1 value is "B".
         03 ca PIC S9(18) identified by "ca" is attribute.
        02 recoded identified by "recoded".
         88 enumerator-0 value is "B".
         03 recoded-value PIC X(80).
        02 para identified by "para".
         03 para-mixed-value PIC X(80).
         03 m PIC S9(18) identified by "m".
        02 more identified by "more".
         03 more-mixed-value PIC X(80).
         03 m PIC S9(18) identified by "m".
         03 n PIC S9(18) identified by "n".

