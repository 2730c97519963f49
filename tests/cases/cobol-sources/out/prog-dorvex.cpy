        1 A pic 9 identified by "A" count in A-count.
