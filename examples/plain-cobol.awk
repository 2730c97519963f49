# Leaves out the XML clauses of a copybook that dorvex wrote, so that a compiler without these
# extensions takes it: awk -f plain-cobol.awk order.cpy. The result is in free format, an entry a line.

# Joins the columns 8 to 72 of the lines of an entry. A hyphen in column 7 goes on with the word, or
# with the literal behind its repeated mark.
{
    text = substr($0, 8, 65)
    sub(/^ +/, "", text)
    if (substr($0, 7, 1) == "-") {
        sub(/^["']/, "", text)
        entry = entry text
    } else {
        entry = entry " " text
    }
    if (!open_literal(entry) && entry ~ /[.] *$/) {
        print plain(entry)
        entry = ""
    }
}

function open_literal(text) {
    return gsub(/"/, "", text) % 2
}

function plain(text) {
    gsub(/ +identified +by +("[^"]*"|[^ .]+)/, "", text)
    gsub(/ +namespace +is +"[^"]*"/, "", text)
    gsub(/ +is +attribute/, "", text)
    gsub(/ +count +in +[^ .]+/, "", text)
    gsub(/^ +| +$/, "", text)
    return text
}
