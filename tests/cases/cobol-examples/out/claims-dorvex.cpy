        1 CLAIM identified by "CLAIM" count in CLAIM-count.
         2 CLAIM-NO pic 9(9) identified by "CLAIM-NO" count in 
            CLAIM-NO-count.
         2 POLICY-NO pic X(12) identified by "POLICY-NO" count in 
            POLICY-NO-count.
         2 LOSS-DATE pic 9(8) identified by "LOSS-DATE" count in 
            LOSS-DATE-count.
         2 CLAIMANT identified by "CLAIMANT" count in CLAIMANT-count.
          3 CLAIMANT-NAME pic X(40) identified by "CLAIMANT-NAME" count 
             in CLAIMANT-NAME-count.
          3 CLAIMANT-BIRTH-DATE pic 9(8) identified by 
             "CLAIMANT-BIRTH-DATE" count in CLAIMANT-BIRTH-DATE-count.
          3 CLAIMANT-PHONE pic X(15) identified by "CLAIMANT-PHONE" 
             count in CLAIMANT-PHONE-count.
         2 OPPONENT identified by "OPPONENT" count in OPPONENT-count.
          3 OPPONENT-NAME pic X(40) identified by "OPPONENT-NAME" count 
             in OPPONENT-NAME-count.
          3 OPPONENT-BIRTH-DATE pic 9(8) identified by 
             "OPPONENT-BIRTH-DATE" count in OPPONENT-BIRTH-DATE-count.
          3 OPPONENT-PHONE pic X(15) identified by "OPPONENT-PHONE" 
             count in OPPONENT-PHONE-count.
         2 RESERVE-AMOUNT pic S9(9)V99 sign is trailing separate 
            identified by "RESERVE-AMOUNT" count in 
            RESERVE-AMOUNT-count.
         2 SHARE-PERCENT pic 9(3)V9(2) identified by "SHARE-PERCENT" 
            count in SHARE-PERCENT-count.
         2 REMARK pic X(60) justified right identified by "REMARK" count
             in REMARK-count.
         2 filler pic X(10).
         2 PAYMENT-COUNT pic 99 identified by "PAYMENT-COUNT" count in 
            PAYMENT-COUNT-count.
         2 PAYMENT occurs 1 to 20 times depending on PAYMENT-COUNT 
            identified by "PAYMENT" count in PAYMENT-count.
          3 PAID-ON pic 9(8) identified by "PAID-ON" count in 
             PAID-ON-count.
          3 PAID-AMOUNT pic S9(7)V99 sign is trailing separate 
             identified by "PAID-AMOUNT" count in PAID-AMOUNT-count.
          3 PAID-TEXT pic Z(6)9.99- identified by "PAID-TEXT" count in 
             PAID-TEXT-count.
