        1 A pic 9 identified by "a" count in a-count.
