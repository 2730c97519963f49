       IDENTIFICATION DIVISION.
       PROGRAM-ID. SALES.
       DATA DIVISION.
       WORKING-STORAGE SECTION.
      * Every item of the record keeps its schema on the way back.
       01  SALE.
           05  SALE-ID             PIC X(8).
           05  BUYER.
               10  BUYER-NAME      PIC N(5).
               10  POSTCODE        PIC XX/XX.
               10  FILLER          PIC X(3).
           05  LINES-SOLD          OCCURS 3 TIMES SIGN LEADING SEPARATE.
               10  QUANTITY        PIC S9(4).
               10  PRICE           PIC S9(5)V99 COMP-3.
               10  TAGS            PIC X(4) OCCURS 2.
           05  DISCOUNT            PIC SV99 SIGN IS LEADING.
           05  SCALED              PIC 9(3)PP BINARY.
           05  RATE                COMP-1.
           05  RATIO               COMP-2.
           05  NOTE                PIC X(60) JUSTIFIED.
       01  REST                    PIC X.
       PROCEDURE DIVISION.
           MOVE 1 TO RATE.
