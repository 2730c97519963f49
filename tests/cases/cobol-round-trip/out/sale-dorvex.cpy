        1 SALE identified by "SALE" namespace is 
           "http://www.example.com/schemas/retail/point-of-sale/receipts
      -    "/version-one" count in SALE-count.
         2 SALE-ID pic X(8) identified by "SALE-ID" is attribute count 
            in SALE-ID-count.
         2 BUYER identified by "BUYER" count in BUYER-count.
          3 BUYER-NAME pic N(5) usage is national identified by 
             "BUYER-NAME" count in BUYER-NAME-count.
          3 POSTCODE pic XX/XX identified by "POSTCODE" count in 
             POSTCODE-count.
          3 filler pic X(3).
         2 LINES-SOLD occurs 3 times identified by "LINES-SOLD" count in
             LINES-SOLD-count.
          3 QUANTITY pic S9(4) sign is leading separate identified by 
             "QUANTITY" count in QUANTITY-count.
          3 PRICE pic S9(5)V99 usage is comp-3 identified by "PRICE" 
             count in PRICE-count.
          3 TAGS pic X(4) occurs 2 times identified by "TAGS" count in 
             TAGS-count.
         2 DISCOUNT pic SV99 sign is leading identified by "DISCOUNT" 
            count in DISCOUNT-count.
         2 SCALED pic 9(3)PP usage is comp-4 identified by "SCALED" 
            count in SCALED-count.
         2 RATE usage is comp-1 identified by "RATE" count in 
            RATE-count.
         2 RATIO usage is comp-2 identified by "RATIO" count in 
            RATIO-count.
         2 NOTE pic X(60) justified right identified by "NOTE" count in 
            NOTE-count.
