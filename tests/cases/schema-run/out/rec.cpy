       01 WS-sale identified by "sale".
        02 WS-line-no PIC S9(18) identified by "line_no".
        02 WS-part identified by "part".
         03 WS-line-no-1 PIC X(80) occurs 3 times identified by 
            "line_no".

