# What people write by hand: framing, the header lists and the end mark, no
# body. A yardstick for scripts/bench.sh.
BEGIN {
    n = split("ABAT ACTI ASSO DETE DETI ECBO ECHA EGET ENTR ERRE ERTI EXP1 EXP2 FICH GROC IMOC IMPO INFO JALO NAIS NUMA NVMN PASS PICO RACO RATA REBO SORT", t)
    for (i = 1; i <= n; i++) types[t[i]]
    n = split("CRE INV MOD DEM EDI INF ECQ", t)
    for (i = 1; i <= n; i++) genres[t[i]]
}
length($0) != 256 || !(substr($0, 22, 4) in types) || !(substr($0, 19, 3) in genres) || substr($0, 256) != "*" { faux++; next }
NR == 1 { print; next }
{ print substr($0, 1, 76) "40" substr($0, 79) }
END { exit faux > 0 ? 2 : 0 }
