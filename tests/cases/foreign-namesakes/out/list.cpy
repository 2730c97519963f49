       01 r identified by "r".
        02 kept PIC S9(18) identified by "kept" is attribute.

