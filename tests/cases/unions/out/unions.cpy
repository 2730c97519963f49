       01 r identified by "r".
        02 mix identified by "mix".
         03 mix-union-value-0.
          88 enumerator-0 value is "A".
          04 mix-union-value-0-value PIC X(80).
         03 mix-union-value-1 redefines mix-union-value-0.
          04 mix-union-value-1-data USAGE COMP-1.
         03 mix-union-value-2 redefines mix-union-value-0.
          04 mix-union-value-2-data PIC S9(3)V9(1).
         03 mix-union-value-3 redefines mix-union-value-0.
          04 mix-union-value-3-data.
           88 enumerator-0 value is "A".
           05 mix-union-value-3-data-value PIC X(80).
        02 deep identified by "deep".
         03 deep-union-value-0.
          04 deep-union-value-0-union-value-0 PIC S9(18).
          04 deep-union-value-0-union-value-1 redefines 
             deep-union-value-0-union-value-0.
           05 deep-union-value-0-union-value-1-data PIC X(80).
         03 deep-union-value-1 redefines deep-union-value-0.
          04 deep-union-value-1-data PIC S9(18).
        02 list identified by "list".
         03 list-union-value-1.
          04 list-union-value-1-data PIC S9(18).
         03 list-union-value-2 redefines list-union-value-1.
          04 list-union-value-2-data PIC X(80).
        02 attr identified by "attr" is attribute.
         03 attr-union-value-0 PIC S9(18).
         03 attr-union-value-1 redefines attr-union-value-0.
          04 attr-union-value-1-data PIC X(80).

