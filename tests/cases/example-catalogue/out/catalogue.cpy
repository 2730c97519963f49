       01 catalogue identified by "catalogue" namespace is 
          "http://example.com/catalogue" count in catalogue-count.
        02 supplier identified by "supplier" count in supplier-count.
         03 caption PIC X(40) identified by "caption" count in 
            caption-count.
         03 keyword PIC X(40) occurs 4 times identified by "keyword" 
            count in keyword-count.
         03 country PIC X(2) identified by "country" is attribute count 
            in country-count.
          88 enumerator-0 value is "NL".
          88 enumerator-1 value is "PT".
        02 product occurs 100 times identified by "product" count in 
           product-count.
         03 caption PIC X(40) identified by "caption" count in 
            caption-count.
         03 keyword PIC X(40) occurs 4 times identified by "keyword" 
            count in keyword-count.
         03 soldBy identified by "soldBy" count in soldBy-count.
          88 enumerator-0 value is "KGM".
          88 enumerator-1 value is "LTR".
          88 enumerator-2 value is "PCE".
          04 soldBy-value PIC X(3).
         03 pack identified by "pack" count in pack-count.
          04 pack-union-value-0 PIC 9(6).
          04 pack-union-value-1 redefines pack-union-value-0.
           05 pack-union-value-1-data PIC X(6).
            88 enumerator-0 value is "LOOSE".
            88 enumerator-1 value is "PALLET".
         03 weight USAGE COMP-2 identified by "weight" count in 
            weight-count.
         03 productId PIC 9(18) identified by "productId" is attribute 
            count in productId-count.
        02 validFrom PIC X(80) identified by "validFrom" is attribute 
           count in validFrom-count.

