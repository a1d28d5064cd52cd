#!/usr/bin/env python3
"""Changes one constant, operator, string or call of the module at a time, and sees whether a test
fails. The tree itself stays as it is: the changes are made in copies under build/mutation.

Usage: tests/mutation/mutate.py [--count N] [--seed N] [--jobs N] [--only TEXT] [--living]
Results are saved as they come (build/mutation/results.json); a second run continues where the first
stopped. Exit status 1 when fewer than 95 % of the mutants are caught."""

import argparse
import json
import os
import queue
import random
import re
import shutil
import subprocess
import sys
import threading
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))
from mutants import mutants_of  # noqa: E402

ROOT = Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
FOLDERS = ("plugin", "toolbar", "addfeature", "dimensions")
# The fast tests of the module, quickest first; the order changes as tests prove useful.
TESTS = """contract.contract contract.protocol host.plugin_manager record.host_units record.symbol_text
record.units record.value_checks fields.items fields.entries fields.fields fields.reports
fields.rules toolbar.entry toolbar.language dimensions.dimensions toolbar.menus toolbar.incoming
dialog.attributes pages.fonts_and_special_texts_page toolbar.activation dialog.frame
dialog.symbol_units dialog.symbol_pick toolbar.construction dialog.sending language.translations
accessibility.accessibility accessibility.layout accessibility.looks resources.resources
pages.pad_page pages.text_formats_page pages.line_page pages.surface_and_arc_page
pages.text_page pages.rows pages.wiring fields.by_hand dimensions.element_area
language.guard_title focus.agreement focus.type_change focus.refused_symbol focus.pending
focus.boxes dialog.symbol_entry dialog.host_calls reliability.failing_construction
reliability.failing_host reliability.reentrancy random_use
""".split()
ENVIRONMENT = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
TARGET_SHARE = 0.95


def command_of(test):
    """The program of a room's class, and its argument."""
    room, _, name = test.partition(".")
    return [f"tests_{room}", name] if name else [room]


def all_mutants():
    found = []
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in (".cpp", ".h"):
                found += mutants_of(str(path.relative_to(ROOT)), path.read_text(encoding="utf-8"))
    return found


def known_living():
    """The mutants that survive and why, from living.txt: file | line's text | change | reason."""
    reasons = {}
    for line in (Path(__file__).parent / "living.txt").read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            path, text, change, reason = (part.strip() for part in line.split(" | "))
            reasons[(path, text, change)] = reason
    return reasons


class Copy:
    """A copy of the tree with its own build, in which one mutant at a time is made."""

    def __init__(self, number):
        self.tree = WORK / f"tree{number}"
        self.build = WORK / f"build{number}"
        self.useful = {}

    def prepare(self):
        self.tree.mkdir(parents=True, exist_ok=True)
        files = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "-z"], cwd=ROOT,
                               capture_output=True, check=True).stdout.decode().split("\0")
        for name in filter(None, files):
            source, target = ROOT / name, self.tree / name
            if not source.exists():
                continue
            if not target.exists() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)
        subprocess.run(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja",
                        "-DCMAKE_BUILD_TYPE=None", "-DCTS_MUTATION=ON", "-DCMAKE_CXX_FLAGS=-O0"],
                       check=True, capture_output=True)
        if not self.compile({command_of(test)[0] for test in TESTS}):
            sys.exit("the tests do not build")
        for test in TESTS:
            if not self.passes(test):
                sys.exit(f"{test} fails without any change")

    def compile(self, targets):
        return subprocess.run(["ninja", "-C", self.build, *targets], capture_output=True,
                              check=False).returncode == 0

    def passes(self, test):
        try:
            program, *arguments = command_of(test)
            return subprocess.run([self.build / "bin" / program, *arguments], cwd=self.build,
                                  env=ENVIRONMENT, capture_output=True, timeout=180,
                                  check=False).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def catcher(self, mutant):
        """What catches the mutant: a test, "compiler", or None."""
        path = self.tree / mutant.path
        original = path.read_text(encoding="utf-8")
        end = mutant.offset + len(mutant.old)
        assert original[mutant.offset:end] == mutant.old, mutant.name
        path.write_text(original[:mutant.offset] + mutant.new + original[end:], encoding="utf-8")
        try:
            if not self.compile(["CanvasToolStripObjects", *self.readers(mutant.path)]):
                return "compiler"
            for test in self.order(mutant.path):
                if not self.passes(test):
                    self.useful.setdefault(mutant.path, []).insert(0, test)
                    return test
            return None
        finally:
            path.write_text(original, encoding="utf-8")
            if self.readers(mutant.path):
                self.compile(self.readers(mutant.path))

    @staticmethod
    def readers(path):
        """The tests to rebuild: they read the protocol themselves."""
        readers = ["tests_contract", "tests_host"]
        return readers if re.fullmatch(r"plugin/(.*\.h|MessageCodes\.cpp)", path) else []

    def order(self, path):
        """The tests that caught other mutants of the file first."""
        useful = list(dict.fromkeys(self.useful.get(path, [])))
        return useful + [test for test in TESTS if test not in useful]


def run(copies, mutants, results, keep):
    waiting = queue.Queue()
    for mutant in mutants:
        waiting.put(mutant)
    lock = threading.Lock()

    def work(copy):
        while True:
            try:
                mutant = waiting.get_nowait()
            except queue.Empty:
                return
            start = time.monotonic()
            catcher = copy.catcher(mutant)
            with lock:
                results[mutant.name] = catcher
                keep()
                print(f"{len(results):4} {catcher or 'LIVES':32} {time.monotonic() - start:5.1f} s  "
                      f"{mutant.name}", flush=True)

    threads = [threading.Thread(target=work, args=(copy,)) for copy in copies]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()


def report(mutants, results):
    """Prints the share and the survivors; true if enough were caught."""
    reasons = known_living()
    counted = [mutant for mutant in mutants if results.get(mutant.name) != "compiler"]
    living = [mutant for mutant in counted if results[mutant.name] is None]
    share = 1 - len(living) / max(1, len(counted))
    print(f"\n{len(counted)} mutants ({len(mutants) - len(counted)} more do not compile), "
          f"{len(counted) - len(living)} caught: {share:.1%}")
    for mutant in living:
        change = f"{mutant.old} -> {mutant.new}"
        print(f"  lives: {mutant.name}\n         {mutant.text}\n         "
              f"{reasons.get((mutant.path, mutant.text, ' '.join(change.split())), 'NO REASON KNOWN')}")
    return share >= TARGET_SHARE


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--count", type=int, default=400, help="mutants to try (default 400)")
    parser.add_argument("--seed", type=int, default=1, help="selects among all mutants (default 1)")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="copies that work at once")
    parser.add_argument("--only", default="", help="only mutants whose name contains this text")
    parser.add_argument("--living", action="store_true", help="try the survivors again")
    parser.add_argument("--fresh", action="store_true", help="forget earlier results")
    arguments = parser.parse_args()

    candidates = all_mutants()
    random.Random(arguments.seed).shuffle(candidates)
    chosen = [m for m in candidates if arguments.only in m.name][:arguments.count]
    print(f"{len(candidates)} mutants in all, {len(chosen)} chosen")
    kept = WORK / "results.json"
    results = json.loads(kept.read_text()) if kept.exists() and not arguments.fresh else {}
    if arguments.living:
        results = {name: catcher for name, catcher in results.items() if catcher}
    todo = [mutant for mutant in chosen if mutant.name not in results]
    if todo:
        copies = [Copy(number) for number in range(min(arguments.jobs, len(todo)))]
        for copy in copies:
            copy.prepare()
        run(copies, todo, results, lambda: kept.write_text(json.dumps(results, indent=0)))
    return 0 if report(chosen, results) else 1


if __name__ == "__main__":
    sys.exit(main())
