       IDENTIFICATION DIVISION.
       PROGRAM-ID. CLAIMS.
      * Lists the claims of a day. The record of the claims file is what
      * becomes a schema; the rest of the program is passed over.
       ENVIRONMENT DIVISION.
       INPUT-OUTPUT SECTION.
       FILE-CONTROL.
           SELECT CLAIM-FILE ASSIGN TO "claims.dat"
               ORGANIZATION IS LINE SEQUENTIAL.
       DATA DIVISION.
       FILE SECTION.
       FD  CLAIM-FILE
           RECORD IS VARYING IN SIZE FROM 200 TO 900 CHARACTERS.
       01  CLAIM.
           05  CLAIM-NO            PIC 9(9).
           05  POLICY-NO           PIC X(12).
           05  LOSS-DATE           PIC 9(8).
           05  CLAIMANT.
               COPY "claim-party.cpy"
                   REPLACING ==:PARTY:== BY ==CLAIMANT==.
           05  OPPONENT.
               COPY "claim-party.cpy"
                   REPLACING ==:PARTY:== BY ==OPPONENT==.
           05  RESERVE-AMOUNT      PIC S9(9)V99 SIGN TRAILING SEPARATE.
           05  SHARE-PERCENT       PIC 9(3)V9(2).
           05  REMARK              PIC X(60) JUSTIFIED RIGHT.
           05  FILLER              PIC X(10).
           05  PAYMENT-COUNT       PIC 99.
           05  PAYMENT OCCURS 1 TO 20 TIMES
                   DEPENDING ON PAYMENT-COUNT.
               10  PAID-ON         PIC 9(8).
               10  PAID-AMOUNT     PIC S9(7)V99
                                   SIGN TRAILING SEPARATE.
               10  PAID-TEXT       PIC Z(6)9.99-.
       WORKING-STORAGE SECTION.
       01  FILE-STATE              PIC X VALUE "N".
           88  END-OF-CLAIMS       VALUE "Y".
       01  TOTAL-RESERVE           PIC S9(11)V99 COMP-3 VALUE ZERO.
       PROCEDURE DIVISION.
       MAIN-PART.
           OPEN INPUT CLAIM-FILE
           PERFORM UNTIL END-OF-CLAIMS
               READ CLAIM-FILE
                   AT END SET END-OF-CLAIMS TO TRUE
                   NOT AT END ADD RESERVE-AMOUNT TO TOTAL-RESERVE
               END-READ
           END-PERFORM
           CLOSE CLAIM-FILE
           DISPLAY "Reserves: " TOTAL-RESERVE
           STOP RUN.
