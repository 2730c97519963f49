000100 IDENTIFICATION DIVISION.
000200 PROGRAM-ID. ENTRIES.
       DATA DIVISION.
       FILE SECTION.
       01  NO-FILE PIC X.
       WORKING-STORAGE SECTION.
       01  A PIC X
       01  B PIC QQ.
       01  C.
           05  D PIC X
               COLOUR RED.
           05  E PIC X OCCURS 2 TO 1 DEPENDING ON A.
           05  F PIC 9 VALUE "a
      -    'b'
               .
      X    05  G PIC 9.
       01  H COMP-3.
           05  PIC X.
       01  I REDEFINES D PIC X.
       02  J PIC X.
       EXEC SQL
           DECLARE C CURSOR FOR S
       END-EXEC.
           COPY ABSENT.
       COPY BROKEN
           REPLACING ==:P:== BY ==K==.
       77  L USAGE OBJECT REFERENCE.
       77  M PIC 9.
       77  N.
       78  MOST VALUE 3.
       PROCEDURE DIVISION.
           COPY ABSENT.
           REPLACE ==MOST== BY ==3==.
           NONSENSE "with no end.
       END PROGRAM ENTRIES.
       PROGRAM-ID. ANOTHER.
       DATA DIVISION.
       WORKING-STORAGE SECTION.
       01  A PIC X(MOST).
