        1 REC identified by "REC".
         2 N-INT pic 9(4) identified by "N-INT".
         2 N-TEXT-0 pic 9V99 usage is comp-5 identified by "N-TEXT-0".
         2 N-DIGITS pic 9(5)V99 usage is comp-4 identified by 
            "N-DIGITS".
         2 N-FLOAT usage is comp-1 identified by "N-FLOAT".
         2 N-DOUBLE usage is comp-2 identified by "N-DOUBLE".
         2 N-UPPER pic 9(4) usage is COMP identified by "N-UPPER".
         2 N-INDEX usage is index identified by "N-INDEX".
         2 S-LI pic S9(3) usage is Display sign is leading identified by
             "S-LI".
         2 S-LS pic S9(3) occurs 5 times sign is leading separate 
            identified by "S-LS".
         2 S-TS pic S9(3)V9 sign is trailing separate identified by 
            "S-TS".
         2 A-RIGHT pic X(4) justified right identified by "A-RIGHT".
         2 A-EDITED pic X/X identified by "A-EDITED".
         2 N-EDITED pic Z(4)9 blank when zero identified by "N-EDITED".
         2 NAT pic N(10) usage is national identified by "NAT".
         2 O-SAME pic 9 usage is comp-3 occurs 3 times identified by 
            "O-SAME".
         2 O-ONCE pic 9 identified by "O-ONCE".
         2 FILLER pic X.
         2 FILLER pic 9.
         2 Filler.
          3 IN-FILLER pic 9 identified by "IN-FILLER".
         2 G-1 identified by "G-1".
          3 G-2 occurs 1 to 2 times identified by "G-2".
           4 LEAF pic 9 identified by "LEAF".
          3 G-EMPTY pic X identified by "G-EMPTY".
         2 R-FALSE pic 9 identified by "R-FALSE".
         2 C-ONE pic X(3) identified by "C-ONE".
          88 C-QUOTED value is "a<b".
         2 C-SPREAD pic 9 identified by "C-SPREAD".
          88 C-LOW value is 1 2.
          88 C-OWN value is 5.
          88 C-HIGH value is 8 3 through 4.
         2 C-RANGE pic X identified by "C-RANGE".
          88 C-LETTER value is 'A' through 'Z'.
          88 C-STAR value is '*'.
         2 O-ODO pic 9 occurs 1 to 10 times depending on N-INT 
            identified by "O-ODO".
