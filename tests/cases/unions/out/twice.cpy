       01 P-r identified by "r".
        02 P-u identified by "u".
         03 P-u-union-value-0 PIC S9(18).
         03 P-u-union-value-1 redefines P-u-union-value-0.
          04 P-u-union-value-1-data PIC X(80).
        02 P-k identified by "k".
         03 P-u-1 identified by "u".
          04 P-u-union-value-0-1 PIC S9(18).
          04 P-u-union-value-1-1 redefines P-u-union-value-0-1.
           05 P-u-union-value-1-data-1 PIC X(80).

