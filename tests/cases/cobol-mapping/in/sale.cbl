      * Its items stand in the dictionary.
