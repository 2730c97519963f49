# Makes the guide readable on a terminal: its examples, which are tables of two columns, follow one
# another, the marks of Markdown go, and paragraphs are filled anew. Reads and writes bytes.

BEGIN { blank = 1 }

function put(line) {
    if (line != "" || !blank) print line
    blank = line == ""
}

function plain(text, label) {
    while (match(text, /\[[^]]*\]\([^)]*\)/)) {
        label = substr(text, RSTART + 1, index(substr(text, RSTART), "]") - 2)
        text = substr(text, 1, RSTART - 1) label substr(text, RSTART + RLENGTH)
    }
    gsub(/\*\*/, "", text)
    return text ~ /^\*.*\*$/ ? substr(text, 2, length(text) - 2) : text
}

# Ends the paragraph that was collected. The first line of a list item or title hangs out.
function flush(text, indent, at) {
    text = plain(paragraph)
    paragraph = ""
    if (text == "") return
    if (title) text = "* " text
    indent = inner ? "    " : ""
    if (title) indent = "  "
    title = 0
    while (length(indent text) > 79) {
        for (at = 79 - length(indent); at > 1 && substr(text, at, 1) != " ";) at--
        if (at <= 1) break
        put(indent substr(text, 1, at - 1))
        if (text ~ /^[*-] /) indent = indent "  "
        text = substr(text, at + 1)
    }
    put(indent text)
}

function heading(text, mark) {
    flush()
    put("")
    put(text)
    gsub(/./, mark, text)
    put(text)
}

/^```/ { flush(); code = !code; put(""); next }
code { put($0 == "" ? "" : (inner ? "        " : "    ") $0); next }
/^    / && paragraph == "" { put($0); next }
/^<tr><td colspan/ { flush(); put(""); inner = title = 1; next }
/^<\/td><td>$/ { flush(); put(""); put("    becomes"); put(""); next }
/^<\/table>$/ { flush(); inner = 0; next }
/^<\/?(table|tr|td)/ { flush(); next }
/^# / { heading(substr($0, 3), "="); next }
/^## / { heading(substr($0, 4), "-"); next }
/^\|[-|]*\|$/ { next }
/^\|/ { put(plain($0)); next }
$0 == "" { flush(); put(""); next }
/^- / { flush() }
{ paragraph = paragraph (paragraph == "" ? "" : " ") $0 }
END { flush() }
