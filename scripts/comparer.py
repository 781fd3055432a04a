"""The work behind scripts/comparer.sh, which says what it does."""

import os
import random
import subprocess
import sys
import tempfile
from pathlib import Path

MODES = [[], ["-i"], ["-d"]]


def abimer(octets, h):
    """The file with up to twelve places damaged."""
    f = bytearray(octets)
    for _ in range(h.choice([0, 0, 1, 2, 3, 6, 12])):
        i = h.randrange(len(f)) if f else 0
        match h.randrange(9):
            case 0 | 1 | 2:
                f[i:i + 1] = bytes([h.choice(b" 0129AEFRZ*,-")])
            case 3:
                f[i:i + 1] = bytes([h.randrange(256)])
            case 4:
                del f[i:i + h.randrange(1, 40)]
            case 5:
                f[i:i] = bytes(h.choice(b" 0A") for _ in range(h.randrange(1, 20)))
            case 6:
                f[i:i] = h.choice([b"\n", b"\r", b"\r\n", b"\x1a", b"\0", b"x\r"])
            case 7:
                fin = f.find(b"\n", i)
                if fin >= 0:
                    del f[fin:fin + 1]
            case 8:
                f[i:i + 12] = b" " * 12
    return bytes(f)


def passer(programme, octets, options, milieu):
    """Status, console and all files that a run leaves."""
    with tempfile.TemporaryDirectory(prefix="quilvane-comparer-") as dossier:
        (Path(dossier) / "in").write_bytes(octets)
        try:
            r = subprocess.run(["./quilvane", *options, "in", "out", "log"], cwd=dossier, env=milieu,
                               executable=programme, capture_output=True, timeout=60)
        except subprocess.TimeoutExpired:
            return "no end after 60 seconds", b"", b"", {}
        fichiers = {p.name: p.read_bytes() for p in sorted(Path(dossier).iterdir())}
        return r.returncode, r.stdout, r.stderr, fichiers


def main(generateur, ancien, nouveau, nombre, graine):
    faketime = next(Path("/usr/lib").glob("**/faketime/libfaketime.so.1"))
    milieu = {"TZ": "UTC", "LANG": "C", "LD_PRELOAD": str(faketime), "FAKETIME": "2024-03-16 11:22:33",
              "FAKETIME_DONT_FAKE_MONOTONIC": "1", "PATH": os.environ["PATH"]}
    statuts = {}
    for n in range(graine, graine + nombre):
        h = random.Random(n)
        mots = [f"graine={n}", f"nombre={h.choice([1, 3, 10, 40])}", f"fautes={h.choice([0, 30, 60, 100])}",
                f"fin={h.choice(['unix', 'dos'])}"]
        octets = abimer(subprocess.run([generateur, *mots], capture_output=True, check=True).stdout, h)
        for options in MODES:
            a, b = (passer(p, octets, options, milieu) for p in (ancien, nouveau))
            if a != b:
                gardee = Path(tempfile.mkdtemp(prefix="quilvane-difference-")) / "in"
                gardee.write_bytes(octets)
                for nom, x, y in zip(("status", "console", "standard error", "files"), a, b):
                    if x != y:
                        print(f"file {n} {' '.join(options)}: {nom} differ:\n  {x!r}\n  {y!r}")
                print(f"the file is kept as {gardee}")
                return 1
            statuts[a[0]] = statuts.get(a[0], 0) + 1
    print(f"{nombre} files in {len(MODES)} modes: no byte differs "
          f"({', '.join(f'{v} runs of status {k}' for k, v in sorted(statuts.items()))})")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2], sys.argv[3], int(sys.argv[4]), int(sys.argv[5])))
