# Makes the tables of script/meet in Markdown. First the measured values, FS tab: name, size,
# median|min|cv, value. Then bench/meting.tabel, FS "|": a heading with the sizes of the rows below
# it, or a row: what it is, the measured name, what it is compared with, the most that the ratio and
# the growth may be, and the sizes of the latter and of the former where they are not the largest.
function getal(x) { return sprintf(x >= 100 ? "%.0f" : x >= 10 ? "%.1f" : "%.2f", x) }
function waarde(naam, n, soort) {
    if (naam == "") return 1
    if (!((naam, n, soort) in w)) {
        print "er is niets gemeten: " naam " " n > "/dev/stderr"
        exit 1
    }
    return w[naam, n, soort]
}
# A ratio of medians, in brackets that of the fastest repetitions, and what it may be.
function vergelijk(naam, n, met, metN, grens,    x) {
    x = waarde(naam, n, "median") / waarde(met, metN, "median")
    if (grens != "" && x > grens) houdt = "**no**"
    return getal(x) " (" getal(waarde(naam, n, "min") / waarde(met, metN, "min")) ") | " \
        (grens == "" ? "-" : grens)
}
FS == "\t" { w[$1, $2, $3] = $4; next }
/^# / {
    aantal = split($2, maat, " ")
    print "\n" substr($1, 3) "\n"
    print "| operation | small | middle | large | compared with | ratio | at most | growth | at most | spread | holds |"
    print "|---|--:|--:|--:|--:|--:|--:|--:|--:|--:|---|"
    next
}
/^Start/ && !(($2, 1, "median") in w) { next }
{
    houdt = "yes"
    rij = "| " $1
    for (i = aantal - 2; i <= aantal; i++)
        rij = rij " | " (i < 1 ? "-" : getal(waarde($2, maat[i], "median")))
    groot = maat[aantal]
    bij = $7 == "" ? groot : $7
    met = $6 == "" ? bij : $6
    rij = rij " | " ($3 == "" ? "-" : getal(waarde($3, met, "median"))) " | " vergelijk($2, bij, $3, met, $4)
    rij = rij " | " (aantal < 2 ? "- | -" : vergelijk($2, groot, $2, maat[aantal - 1], $5))
    print rij " | " (($2, groot, "cv") in w ? sprintf("%.0f %%", 100 * w[$2, groot, "cv"]) : "-") " | " houdt " |"
}
