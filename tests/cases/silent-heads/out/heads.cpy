       01 good PIC S9(18) identified by "good".

