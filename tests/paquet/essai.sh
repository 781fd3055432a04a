#!/usr/bin/env bash
# The life of the package in a fresh Debian root, which scripts/paquet.sh makes:
# install, use, upgrade over a running runner, remove, purge. One line for each
# step that holds; the first that does not ends it with status 1.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C PATH=/usr/sbin:/usr/bin:/sbin:/bin
depot=/var/spool/quilvane/acti
documents=/usr/share/doc/quilvane
unite=/usr/lib/systemd/system/quilvane-lot@.service

tenir() { echo "  holds: $*"; }
manquer() {
    echo "  fails: $*"
    exit 1
}

# What stands on the machine, but for what dpkg and apt write for themselves.
etat() {
    find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /run -o -path /essai -o -path /tmp -o -path /var/cache -o \
        -path /var/log -o -path /var/lib/dpkg -o -path /var/lib/apt \) -prune -o -print |
        grep -vE '^/etc/(passwd|group|shadow|gshadow|subuid|subgid)-$' | sort
    sort /etc/passwd /etc/group
}

# lancer: the command of the service file, as its user, from anywhere.
lancer() {
    local commande utilisateur
    commande=$(sed -n 's/^ExecStart=//p' $unite | sed "s/ \$OPTIONS/ $1/; s,%i,acti,")
    utilisateur=$(sed -n 's/^User=//p' $unite)
    cd /
    exec runuser -u "$utilisateur" -- bash -c "umask $(sed -n 's/^UMask=//p' $unite); exec $commande"
}

# deposer PREFIX: all examples, under names of their own, as a sender does it.
deposer() {
    local f
    for f in $documents/exemples/*.vse; do
        install -o quilvane -g quilvane "$f" "$depot/arrivee/$1$(basename "$f").part"
        mv "$depot/arrivee/$1$(basename "$f").part" "$depot/arrivee/$1$(basename "$f")"
    done
}

compter() { find "$depot/$1" -type f -name "$2" | wc -l; }

# juger FILES: half of so many files were accepted, half refused, each once.
juger() {
    [ "$(wc -l <$depot/journal.jsonl)" -eq "$1" ] || manquer "the journal has a line for each of $1 files"
    [ "$(compter emis '*.vse')" -eq $(($1 / 2)) ] || manquer "half of the files are accepted"
    [ "$(compter rejets '*.vse')" -eq $(($1 / 2)) ] || manquer "half of the files are refused"
    [ "$(compter rejets '*.vse.html')" -eq $(($1 / 2)) ] || manquer "each refused file has its report"
    [ "$(compter echecs '*')" -eq 0 ] || manquer "no file failed"
    [ -z "$(find $depot/encours -mindepth 1)" ] || manquer "nothing is left in encours"
}

# rejouer: the first example of README with the program, run again: what it
# prints is what README shows.
rejouer() {
    cd "$(mktemp -d)"
    ln -s $documents/exemples exemples
    awk '/^```/ { if (dedans && vu) exit; dedans = !dedans; texte = ""; next }
         dedans { texte = texte $0 "\n"; if ($0 ~ /^\$ quilvane /) vu = 1 }
         END { if (vu) printf "%s", texte }' $documents/README.md >attendu
    [ -s attendu ] || manquer "README shows an example"
    { echo 'exec 2>&1'; sed -n 's/^\$ //p' attendu | while IFS= read -r ligne; do
        printf 'statut=$?; printf "%%s\\n" %q; (exit $statut)\n%s\n' "\$ $ligne" "$ligne"
    done; } >dialogue
    bash dialogue >obtenu || true
    cmp attendu obtenu || manquer "README's example prints what it shows"
}

apt-get satisfy -y -qq "$(dpkg-deb -f /essai/un.deb Depends)" >/dev/null
mkdir -p /etc/systemd/system/multi-user.target.wants
etat >/essai/avant
dpkg -i /essai/un.deb >/dev/null
tenir "installed, with $(dpkg-deb -f /essai/un.deb Depends)"

for p in quilvane-guide quilvane-lot; do $p --version >/dev/null || manquer "$p runs"; done
rejouer
tenir "README's example prints what it shows"

# ecrit WORD: the commands of the operator's document that begin so.
ecrit() {
    sed -n "s/^    \($1 .*\)/\1/p" $documents/exploitation.md | grep . || manquer "the document has a command $1"
}

ecrit 'install -d' | bash -e || manquer "the document's commands make the spool"
[ -d $depot/arrivee ] || manquer "the document's commands make $depot/arrivee"
nombre=$(find $documents/exemples -name '*.vse' | wc -l)
deposer a_
statut=0
(lancer "") >/dev/null || statut=$?
[ $statut -eq 2 ] || manquer "a pass with refused files ends with 2, not $statut"
juger "$nombre"
tenir "the service's command, as its user: $nombre files, each where it belongs"

(lancer --suivre) >/essai/runner.log 2>&1 &
sleep 1
deposer b_
sleep 2
cp /essai/deux.deb /essai/quilvane_2_amd64.deb
(cd /essai && ecrit 'apt-get install' | sed 's/VERSION/2/' | bash -e >/essai/apt.log 2>&1) ||
    manquer "the document's command upgrades: $(tail -n 3 /essai/apt.log)"
deposer c_
for _ in $(seq 120); do
    [ "$(wc -l <$depot/journal.jsonl)" -lt $((3 * nombre)) ] || break
    sleep 1
done
pid=$(pgrep -x quilvane-lot 2>/dev/null || for e in /proc/[0-9]*/comm; do
    if [ "$(cat "$e" 2>/dev/null)" = quilvane-lot ]; then basename "$(dirname "$e")"; fi; done | head -1)
[ -n "$pid" ] || manquer "the runner outlives the upgrade"
kill -TERM "$pid"
wait $! || statut=$?
[ $statut -eq 2 ] || manquer "the runner ends with 2, not $statut"
juger $((3 * nombre))
tenir "upgraded to $(dpkg-query -W -f '${Version}' quilvane) over a running runner: $((2 * nombre)) files, none lost, none twice"

dpkg -r quilvane >/dev/null
[ -z "$(find /usr -name '*quilvane*')" ] || manquer "removing leaves nothing in /usr"
[ "$(compter emis '*.vse')" -gt 0 ] || manquer "removing leaves the spool"
tenir "removed; the spool stays"
dpkg -P quilvane >/dev/null
[ "$(compter emis '*.vse')" -gt 0 ] || manquer "purging leaves a spool that holds files"
getent passwd quilvane >/dev/null || manquer "the user stays with the spool"
tenir "purged; a spool that holds files stays, with its user"

rm -r $depot
dpkg -i /essai/un.deb >/dev/null
ln -s ${unite%service}path /etc/systemd/system/multi-user.target.wants/quilvane-lot@acti.path
echo 'OPTIONS=--garder 400' >/etc/default/quilvane-lot-acti
dpkg -P quilvane >/dev/null
etat >/essai/apres
diff /essai/avant /essai/apres || manquer "after a purge nothing is left"
tenir "purged without a spool; nothing is left, no user either"
