#!/usr/bin/env python3
"""Changes single lines of the layers below the forms, one at a time, and sees whether the tests notice.

Works on a copy of the committed tree under build/mutation, so that nothing here is touched. A mutant is first given
to the tests of its own layer, then, if they let it pass, to those further up. The sample is the same for the same
seed, count and tree.
"""

import argparse
import json
import os
import random
import subprocess
import sys
from collections import Counter
from pathlib import Path

from mutants import LAYERS, Mutant, mutants_of

ROOT = Path(__file__).resolve().parents[2]
# Ever further from the layer itself.
FURTHER = ["platform_test", "config_test", "project_test", "binding_test", "forms_test", "scenarios_headless_test",
           "app_test", "sweep_test"]
BUILD_SECONDS = 600
TEST_SECONDS = 180


def sources(tree):
    for layer in LAYERS:
        for file in sorted((tree / "src" / layer).rglob("*.cpp")):
            # What speaks with the machine is tried by faults of the machine, not by faults of the code.
            if layer != "platform" or file.name.startswith("Profile"):
                yield file


def all_mutants(tree):
    for file in sources(tree):
        yield from mutants_of(str(file.relative_to(tree)), file.read_text(encoding="utf-8"))


def copy_tree(folder):
    tree = folder / "tree"
    tree.mkdir(parents=True, exist_ok=True)
    archive = subprocess.run(["git", "-C", ROOT, "archive", "HEAD"], check=True, capture_output=True).stdout
    subprocess.run(["tar", "-x", "-C", tree], input=archive, check=True)
    return tree


def configure(tree, build):
    linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold"] if any(
        (Path(p) / "mold").exists() for p in os.environ["PATH"].split(":")) else []
    subprocess.run(["cmake", "-S", tree, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DGFC_WINDOW=OFF",
                    "-DGFC_PCH=OFF", "-DCMAKE_CXX_FLAGS=-O0 -g0", *linker],
                   check=True, stdout=subprocess.DEVNULL)


def compiles(build, *targets, seconds=BUILD_SECONDS):
    try:
        return subprocess.run(["ninja", "-C", build, *targets], capture_output=True, timeout=seconds).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def notices(build, program):
    """True if the program fails; what never ends or falls over fails too."""
    try:
        return subprocess.run([build / "bin" / program, "--gtest_brief=1"], capture_output=True,
                              timeout=TEST_SECONDS).returncode != 0
    except subprocess.TimeoutExpired:
        return True


def own_test(mutant):
    return mutant.file.split("/")[1] + "_test"


def outcome_of(build, mutant, further):
    own = own_test(mutant)
    for program in [own] + [name for name in further if name != own]:
        if not compiles(build, program):
            return "stillborn", ""  # the compiler noticed, by a warning or an error
        if notices(build, program):
            return "killed", program
    return "survived", ""


def apply(tree, mutant):
    file = tree / mutant.file
    lines = file.read_text(encoding="utf-8").split("\n")
    lines[mutant.line - 1] = mutant.after
    file.write_text("\n".join(lines), encoding="utf-8")


def run(tree, build, mutants, further, log):
    for mutant in mutants:
        file = tree / mutant.file
        original = file.read_text(encoding="utf-8")
        apply(tree, mutant)
        outcome, by = outcome_of(build, mutant, further)
        file.write_text(original, encoding="utf-8")
        log.write(json.dumps({"mutant": mutant.name, "outcome": outcome, "by": by}) + "\n")
        log.flush()
        yield mutant, outcome, by


def tell(results):
    outcomes = Counter(outcome for _, outcome, _ in results)
    by = Counter(program for _, outcome, program in results if outcome == "killed")
    tried = outcomes["killed"] + outcomes["survived"]
    print(f"\n{len(results)} mutants: {outcomes['stillborn']} did not compile, {outcomes['killed']} of {tried} killed")
    for program, count in by.most_common():
        print(f"  {count:5} by {program}")
    for mutant, outcome, _ in results:
        if outcome == "survived":
            print(f"survived: {mutant.name}")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--count", type=int, default=300, help="mutants in the sample, over all parts")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--part", default="1/1", help="K/N: the K-th of N parts of the sample, each on a tree of its own")
    parser.add_argument("--first", type=int, default=1, help="where in the sample to begin, for one broken off")
    parser.add_argument("--only", default="", help="mutants whose name holds this text")
    parser.add_argument("--own", action="store_true", help="the tests of the mutant's own layer alone; builds far less")
    arguments = parser.parse_args()
    part, parts = (int(number) for number in arguments.part.split("/"))
    folder = ROOT / "build" / "mutation" / f"part{part}"
    tree = copy_tree(folder)
    build = tree / "build"
    everything = [mutant for mutant in all_mutants(tree) if arguments.only in mutant.name]
    sample = random.Random(arguments.seed).sample(everything, min(arguments.count, len(everything)))
    print(f"{len(everything)} mutants in all, {len(sample)} in the sample", flush=True)
    configure(tree, build)
    further = [] if arguments.own else FURTHER
    if not compiles(build, *{own_test(mutant) for mutant in everything}, *further, seconds=None):
        sys.exit("the tree does not build")
    with open(folder / "outcomes.jsonl", "w" if arguments.first == 1 else "a", encoding="utf-8") as log:
        tell(list(run(tree, build, sample[arguments.first - 1:][part - 1::parts],
                      further, log)))


if __name__ == "__main__":
    main()
