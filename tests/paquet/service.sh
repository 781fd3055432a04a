#!/usr/bin/env bash
# The units and the cron line in a Debian root that has been booted, which
# scripts/paquet.sh makes: what the operator's document says, as it is written
# there. One line for each step that holds; the first that does not ends it with
# status 1. Run by a unit of its own; the lines go to /essai/dit.
set -euo pipefail
exec 3>/essai/dit >/essai/journal 2>&1
export DEBIAN_FRONTEND=noninteractive LC_ALL=C PATH=/usr/sbin:/usr/bin:/sbin:/bin
depot=/var/spool/quilvane/acti
documents=/usr/share/doc/quilvane
exemples=$documents/exemples
passage=quilvane-lot@acti.service

tenir() { echo "  holds: $*" >&3; }
manquer() {
    echo "  fails: $*" >&3
    journalctl --no-pager -u $passage | tail -n 20 >&3 || true
    exit 1
}

# ecrit PATTERN: the document's commands that match.
ecrit() {
    sed -n "s/^    \\($1.*\\)/\\1/p" $documents/exploitation.md | grep . || manquer "the document has a command $1"
}

# deposer NAME FILE: as a sender does it.
deposer() {
    install -o quilvane -g quilvane "$2" "$depot/arrivee/$1.part"
    mv "$depot/arrivee/$1.part" "$depot/arrivee/$1"
}

# deposerTout PREFIX: every example.
deposerTout() {
    local f
    for f in "$exemples"/*.vse; do deposer "$1$(basename "$f")" "$f"; done
}

lignes() { cat $depot/journal.jsonl 2>/dev/null | wc -l; }

# attendre LINES WHAT: until the journal has so many and no pass goes on.
attendre() {
    for _ in $(seq 1200); do
        if [ "$(lignes)" -ge "$1" ] && ! systemctl is-active --quiet $passage && [ -z "$(find $depot/encours -mindepth 1)" ]; then break; fi
        sleep 0.2
    done
    [ "$(lignes)" -eq "$1" ] || manquer "$2: the journal has $(lignes) lines, not $1"
    [ -z "$(find $depot/arrivee $depot/encours -mindepth 1)" ] || manquer "$2: nothing is left in arrivee and encours"
}

dpkg -i /essai/un.deb
ecrit 'install -d ' | bash -e || manquer "the spool is made"
ecrit 'systemctl enable --now ' | bash -e || manquer "the units are enabled"
nombre=$(find $exemples -name '*.vse' | wc -l)
deposerTout a_
attendre "$nombre" "the path starts a pass"
[ "$(systemctl is-failed $passage)" = inactive ] || manquer "a pass with refused files is a success"
[ "$(find $depot/rejets -name '*.html' | wc -l)" -eq $((nombre / 2)) ] || manquer "each refused file has its report"
tenir "files that arrive start a pass of the hardened service: $nombre, each where it belongs"

printf 'rien\n' >/essai/rien
deposer rien.vse /essai/rien
attendre $((nombre + 1)) "a file fails"
systemctl --failed --no-legend | grep -q $passage || manquer "systemctl --failed tells of a pass with a file that failed"
tenir "a file that cannot be processed is seen in systemctl --failed"

deposerTout b_
for _ in $(seq 300); do
    [ "$(lignes)" -le $((nombre + 2)) ] || break
    sleep 0.1
done
systemctl kill -s KILL $passage
[ "$(lignes)" -lt $((2 * nombre + 1)) ] || manquer "the pass was killed half way"
attendre $((2 * nombre + 1)) "after a kill"
tenir "what a killed pass has left, the timer's next one ends"

echo 'OPTIONS=--metriques /var/lib/prometheus/node-exporter/quilvane.prom' >/etc/default/quilvane-lot-acti
install -d -o quilvane /var/lib/prometheus/node-exporter
mkdir "/etc/systemd/system/$passage.d"
sed -n '/^    # systemctl edit /,/^$/s/^    //p' $documents/exploitation.md >"/etc/systemd/system/$passage.d/override.conf"
systemctl daemon-reload
deposer c.vse $exemples/acti_accepte.vse
attendre $((2 * nombre + 2)) "with metrics"
grep -qxF 'quilvane_lot_fichiers_total{issue="emis"} 1' /var/lib/prometheus/node-exporter/quilvane.prom ||
    manquer "the metrics are written"
tenir "metrics, with the addition that the document shows"

dpkg -i /essai/deux.deb
systemctl is-active quilvane-lot@acti.path quilvane-lot@acti.timer >/dev/null || manquer "the units outlive an upgrade"
systemctl disable --now quilvane-lot@acti.path quilvane-lot@acti.timer
ecrit '\* \* \* \* \* ' >/etc/cron.d/quilvane
systemctl start cron
deposer d.vse $exemples/acti_accepte.vse
attendre $((2 * nombre + 3)) "with cron"
systemctl stop cron
rm /etc/cron.d/quilvane
tenir "upgraded; without the units the cron line does the same"

systemctl enable --now quilvane-lot@acti.path quilvane-lot@acti.timer
dpkg -r quilvane
! systemctl is-active --quiet quilvane-lot@acti.path || manquer "removing stops the path"
! systemctl is-active --quiet quilvane-lot@acti.timer || manquer "removing stops the timer"
dpkg -P quilvane
[ -d $depot/emis ] || manquer "purging leaves the spool"
getent passwd quilvane >/dev/null || manquer "purging leaves the spool's user"
tenir "removed and purged: the units are stopped, the spool stays"
echo end >&3
