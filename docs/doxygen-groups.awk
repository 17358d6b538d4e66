# Doxygen shows the rest of the line behind @name as it stands. The headers put what all members of a group have in
# common there, so a title that goes on is joined, and its @return becomes words.
/^ *\/\/\/ @name .*@return/ {
    title = $0
    spare = 0
    while (title !~ /\.$/ && (getline next_line) > 0) {
        sub(/^ *\/\/\/ */, "", next_line)
        title = title " " next_line
        ++spare
    }
    sub(/@return/, "Result:", title)
    print title
    while (spare-- > 0) print "///"
    next
}
{ print }
