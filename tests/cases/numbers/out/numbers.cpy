       01 r identified by "r".
        02 plus PIC S9(18) occurs 3 times identified by "plus".
        02 zeros PIC S9(18) occurs 12 times identified by "zeros".
        02 one PIC S9(18) identified by "one".
        02 single PIC S9(18) identified by "single".
        02 choice- occurs 2 times.
         03 twice PIC S9(18) identified by "twice".
        02 ten PIC X(10) identified by "ten".
        02 ten-min PIC X(10) identified by "ten-min".
        02 nothing PIC X(1) identified by "nothing".
        02 empty PIC X(1) identified by "empty".
        02 amount PIC S9(5)V9(2) identified by "amount".

