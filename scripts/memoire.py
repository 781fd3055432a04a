"""The work behind scripts/memoire.sh, which says what it does."""

import random
import subprocess
import sys
import tempfile
from pathlib import Path

from comparer import MODES, abimer


def entrees(nombre):
    """The examples, `nombre` damaged copies of each, and the files of the corpus."""
    for exemple in sorted(Path("exemples").glob("*.vse")):
        octets = exemple.read_bytes()
        yield exemple.name, octets
        for n in range(nombre):
            yield f"{exemple.name}, copy {n + 1}", abimer(octets, random.Random(f"{exemple.name} {n}"))
    for fichier in sorted(Path("fuzz/corpus/fichier").iterdir()):
        yield fichier.name, fichier.read_bytes()[1:]


def main(quilvane, nombre):
    passes = {}
    for nom, octets in entrees(nombre):
        for options in MODES:
            with tempfile.TemporaryDirectory(prefix="quilvane-memoire-") as dossier:
                (Path(dossier) / "in").write_bytes(octets)
                r = subprocess.run([Path(quilvane).resolve(), *options, "in", "out", "log"], cwd=dossier,
                                   capture_output=True, timeout=120, check=False)
            if r.returncode not in (0, 1, 2) or b"Sanitizer" in r.stderr:
                print(f"{nom} {' '.join(options)}: {r.returncode}\n{r.stderr.decode(errors='replace')[:4000]}")
                return 1
            passes[r.returncode] = passes.get(r.returncode, 0) + 1
    print(f"{sum(passes.values())} runs: every byte that was read had been written "
          f"({', '.join(f'{v} of status {k}' for k, v in sorted(passes.items()))})")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], int(sys.argv[2])))
