       01 r identified by "r".
        02 len PIC X(10) identified by "len".
        02 min-100 PIC X(100) identified by "min-100".
        02 ten-min PIC X(10) identified by "ten-min".
        02 ten-max PIC X(15) identified by "ten-max".
        02 both PIC S9(5)V9(2) identified by "both".
        02 no-digits PIC SV9(2) identified by "no-digits".
        02 money PIC S9(6)V9(1) identified by "money".
        02 rate-1 PIC S9(9)V9(1) identified by "rate-1".
        02 uns-4 PIC 9(4) identified by "uns-4".
        02 pattern PIC X(80) identified by "pattern".
        02 closed USAGE COMP-1 identified by "closed".
        02 open-range PIC S9(18) identified by "open_range".
        02 hue identified by "hue".
         88 enumerator-0 value is "RED".
         88 enumerator-1 value is "GREEN".
         88 enumerator-3 value is "BLUE".
         03 hue-value PIC X(80).
        02 gap identified by "gap".
         88 enumerator-0 value is "A".
         88 enumerator-2 value is "B".
         03 gap-value PIC X(80).
        02 stay PIC X(80) identified by "stay".
         88 enumerator-0 value is "A".
         88 enumerator-1 value is "B".
        02 cut PIC X(5) identified by "cut".
         88 enumerator-0 value is "A".
        02 short identified by "short".
         88 enumerator-0 value is "A".
         03 short-value PIC X(5).
        02 quoted identified by "quoted".
         88 enumerator-0 value is "a""b".
         03 quoted-value PIC X(80).
        02 rate identified by "rate".
         88 enumerator-0 value is "1.5".
         03 rate-value PIC S9(3)V9(2).
        02 kept-b identified by "kept-b".
         88 enumerator-0 value is "B".
         03 kept-b-value PIC X(80).
        02 moved-b identified by "moved-b".
         03 moved-b-value PIC X(80).
         88 enumerator-1 value is "B".
        02 moved-2 identified by "moved-2".
         88 enumerator-0 value is "A".
         88 enumerator-1 value is "B".
         03 moved-2-value PIC X(2).
        02 rates identified by "rates".
         88 enumerator-0 value is "1.5".
         88 enumerator-1 value is "2".
         03 rates-value PIC S9(3)V9(1).
        02 digits PIC X(5) identified by "digits" is attribute.
        02 state identified by "state" is attribute.
         88 enumerator-0 value is "A".
         03 state-value PIC X(80).

