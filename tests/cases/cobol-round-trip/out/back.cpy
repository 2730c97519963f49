       01 SALE identified by "SALE" namespace is 
          "http://www.example.com/schemas/retail/point-of-sale/receipts/
      -   "version-one" count in SALE-count.
        02 BUYER identified by "BUYER" count in BUYER-count.
         03 BUYER-NAME PIC X(5) identified by "BUYER-NAME" count in 
            BUYER-NAME-count.
         03 POSTCODE PIC X(5) identified by "POSTCODE" count in 
            POSTCODE-count.
        02 LINES-SOLD occurs 3 times identified by "LINES-SOLD" count in
            LINES-SOLD-count.
         03 QUANTITY PIC S9(4) identified by "QUANTITY" count in 
            QUANTITY-count.
         03 PRICE PIC S9(5)V9(2) identified by "PRICE" count in 
            PRICE-count.
         03 TAGS PIC X(4) occurs 2 times identified by "TAGS" count in 
            TAGS-count.
        02 DISCOUNT PIC SV9(2) identified by "DISCOUNT" count in 
           DISCOUNT-count.
        02 SCALED PIC S9(5) identified by "SCALED" count in 
           SCALED-count.
        02 RATE USAGE COMP-1 identified by "RATE" count in RATE-count.
        02 RATIO USAGE COMP-2 identified by "RATIO" count in 
           RATIO-count.
        02 NOTE PIC X(60) identified by "NOTE" count in NOTE-count.
        02 SALE-ID PIC X(8) identified by "SALE-ID" is attribute count 
           in SALE-ID-count.

