#!/usr/bin/env python3
"""Makes single changes in a copy of the code and says which tests went red for each; started by
scripts/mutation.sh. A change that no test notices has survived: it needs a test, or a line in
tests/mutation-survivors.txt that says why no test can or should notice it.

The code is read as text. Everything rests on its format: one statement a line, blanks around operators.
A wrong guess costs little: a change that does not compile is not counted and another one takes its place.
"""
import argparse
import collections
import fcntl
import json
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys

# The test programs that see a room, nearest first; the next one runs when a change has survived so far.
# The rooms stand as their faults would harm.
PROGRAMS = {
    "link": ["link_tests", "link_integration_tests", "files_tests", "app_tests"],
    "files": ["files_tests", "app_tests"],
    "app": ["app_tests"],
    "base": ["base_tests", "platform_tests", "lang_tests", "link_tests", "files_tests", "app_tests"],
    "lang": ["lang_tests", "link_tests", "files_tests", "app_tests"],
}
OPPOSITES = {" == ": " != ", " != ": " == ", " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > "}
WALL_SECONDS = 900  # a test program that waits for something that never comes
WRITTEN_BYTES = 6 << 30  # a test makes a file of 5 GB, though without content
MEMORY_BYTES = 6 << 30

Change = collections.namedtuple("Change", "file kind start end text")


# --- where changes can be made ---

TOKENS = re.compile(
    r'(?P<comment>//[^\n]*|/\*.*?\*/)'
    r'|(?P<raw>R"(?P<mark>[^(]*)\(.*?\)(?P=mark)")'
    r'|(?P<string>"(?:\\.|[^"\\\n])*")'
    r"|(?P<letter>(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+')"
    r'|(?P<directive>^[ \t]*#(?:\\\n|[^\n])*)', re.S | re.M)


def masked(text):
    """The text with comments, literals and directives as blanks of the same length; a string leaves its
    quotes, so that it still counts as something."""
    def blank(match):
        token = match.group()
        hidden = re.sub(r"[^\n]", " ", token)
        return '"' + hidden[1:-1] + '"' if match.lastgroup in ("string", "raw", "mark", "letter") else hidden
    return TOKENS.sub(blank, text)


def in_functions(code):
    """For each character whether it stands in the body of a function."""
    inside = bytearray(len(code))
    open_braces, begin = [], 0
    for place, letter in enumerate(code):
        if letter == "{":
            before = code[begin:place].strip()
            declares = re.match(r"(?:inline )?(?:namespace|extern|class|struct|enum|union|template)\b", before)
            function = bool(re.search(r"\)(?: const| noexcept| override| mutable|\s*->[^;{]*|\s*:.*)*$", before, re.S))
            open_braces.append((bool(open_braces) and open_braces[-1]) or (function and not
                               (declares and not before.startswith("template"))))
        elif letter == "}" and open_braces:
            open_braces.pop()
        if letter in "{};":
            begin = place + 1
        inside[place] = bool(open_braces) and open_braces[-1]
    return inside


def closing(code, place):
    """Where the parenthesis at `place` is closed, or None."""
    depth = 0
    for end in range(place, len(code)):
        depth += {"(": 1, ")": -1}.get(code[end], 0)
        if depth == 0:
            return end
    return None


STATEMENT = re.compile(r"^[ \t]+(?P<body>(?!return\b|delete\b|throw\b|using\b|goto\b|break\b|continue\b|case\b)"
                       r"(?:\+\+|--|\(void\)|\*)?[A-Za-z_][\w:]*(?:<[^;\n]*?>)?"
                       r"(?:(?:\.|->|::)\w+|\([^;\n]*?\)|\[[^\];\n]*\])*"
                       r"(?:\([^;{}]*\)| [-+|&]?= [^;{}]*|\+\+|--)?);$", re.M)


def statements(code):
    """Calls and assignments that are a statement of their own."""
    for match in STATEMENT.finditer(code):
        body = match.group("body")
        if re.search(r"[(=]|\+\+|--", body) and body.count("(") == body.count(")"):
            yield match


def conditions(code):
    """The places of what decides in an if or while."""
    for match in re.finditer(r"\b(?:if|while) \(", code):
        start, end = match.end(), closing(code, match.end() - 1)
        if end is None:
            continue
        start = max(start, code.rfind(";", start, end) + 1)
        if not re.search(r"[^=!<>]=[^=]", code[start:end]):
            yield start, end


def do_not_see_each_other(first, second):
    """Whether two statements set different variables, neither of which the other one names, so that their
    order is nobody's business."""
    targets = [re.match(r"([A-Za-z_][\w.]*) = ", statement) for statement in (first, second)]
    if not all(targets):
        return False
    names = [target.group(1) for target in targets]
    return names[0] != names[1] and names[0] not in second and names[1] not in first


def changes_of(file, text):
    code = masked(text)
    inside = in_functions(code)
    found = []

    def change(kind, start, end, new):
        if inside[start]:
            found.append(Change(file, kind, start, end, new))

    for start, end in conditions(code):
        space = " " if code[start] == " " else ""
        change("condition negated", start, end, f"{space}!({text[start:end].strip()})")
    one_liners = {}
    for match in statements(code):
        start, end = match.start("body"), match.end()
        change("statement removed", start, end, ";")
        if "\n" not in text[start:end]:
            one_liners[match.start()] = (start, end)
    for line, (start, end) in one_liners.items():
        below = one_liners.get(end + 1)
        before = code[:line].rstrip()
        # Below a condition without braces the second one would become unconditional.
        isBlock = below and start - line == below[0] - end - 1 and before and before[-1] in "{};"
        if isBlock and not do_not_see_each_other(code[start:end], code[below[0]:below[1]]):
            swapped = text[below[0]:below[1]] + text[end:below[0]] + text[start:end]
            change("order swapped", start, below[1], swapped)
    for match in re.finditer(r"(?<![\w.'])\d+(?=u?\b(?![.'x\w]))", code):
        change("constant off by one", match.start(), match.end(), str(int(match.group()) + 1))
    for match in re.finditer(r"\breturn (?!\{\}|true;|false;|std::nullopt;)([^;]+);", code):
        change("return value fixed", match.start(1), match.end(1), "{}")
    for match in re.finditer(r"\b(?:true|false)\b", code):
        change("boolean flipped", match.start(), match.end(), "false" if match.group() == "true" else "true")
    for match in re.finditer("|".join(OPPOSITES), code):
        change("comparison changed", match.start(), match.end(), OPPOSITES[match.group()])
    for match in re.finditer(r" (?:&&|\|\|)(?=\s)", code):
        change("and/or exchanged", match.start(), match.end(), " ||" if "&" in match.group() else " &&")
    return found


def one_line(text):
    return " ".join(text.split())


def shown(change, text):
    """The changed lines before and after, each as one line: what the change is known by."""
    first = text.rfind("\n", 0, change.start) + 1
    last = text.find("\n", change.end)
    last = len(text) if last < 0 else last
    after = text[first:change.start] + change.text + text[change.end:last]
    return f"{one_line(text[first:last])} => {one_line(after)}"


def in_turn(changes, chance):
    """Mixed, but one of each kind in turn, so that no kind crowds out the others."""
    kinds = collections.defaultdict(list)
    for change in changes:
        kinds[change.kind].append(change)
    for group in kinds.values():
        chance.shuffle(group)
    groups = [kinds[kind] for kind in sorted(kinds)]
    chance.shuffle(groups)
    ordered = []
    while any(groups):
        ordered += [group.pop() for group in groups if group]
    return ordered


def shares(texts, count, seed):
    """How many changes each file gets, by its size; what is left over goes to files by chance."""
    total = sum(len(text) for text in texts.values())
    exact = {file: count * len(text) / total for file, text in texts.items()}
    given = {file: int(share) for file, share in exact.items()}
    chance = random.Random(f"{seed}")
    by_luck = sorted(exact, key=lambda file: (chance.random() / (exact[file] - given[file] + 1e-9), file))
    for file in by_luck[:count - sum(given.values())]:
        given[file] += 1
    return given


# --- the copy of the tree, its build and its tests ---

class Copy:
    """The sources under build/mutation, built there by the preset for daily work, so that the compiler's
    cache knows most of it."""

    def __init__(self, source, options):
        self.folder = source / "build" / "mutation"
        self.folder.mkdir(parents=True, exist_ok=True)
        self.lock = open(self.folder / "lock", "w")
        try:
            fcntl.flock(self.lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            sys.exit(f"Another run works in {self.folder}.")
        self.tree = self.folder / "tree"
        self.build = self.tree / "build" / "dev"
        self.scratch = self.folder / "scratch"
        self.cpu_seconds = options.cpu_seconds
        self.environment = {**os.environ, "HOME": str(self.scratch), "TMPDIR": str(self.scratch),
                            "GTEST_FAIL_FAST": "1" if options.first_red else "0"}
        self.own_tests = options.own_tests
        self.update(source)
        subprocess.run(["cmake", "--preset", "dev", "-DVANTREL_BENCH=OFF"], cwd=self.tree, check=True,
                       stdout=subprocess.DEVNULL)
        listing = subprocess.run(["ninja", "-C", self.build, "-t", "targets", "all"], check=True,
                                 capture_output=True, text=True).stdout
        self.programs = {pathlib.Path(path).name: path for path in
                         re.findall(r"^(\S+): CXX_EXECUTABLE_LINKER", listing, re.M)}

    def update(self, source):
        """Files that are as they were keep their times, so little is built again."""
        wanted = set(source_files(source))
        for file in wanted:
            copy, bytes_now = self.tree / file, (source / file).read_bytes()
            if not copy.exists() or copy.read_bytes() != bytes_now:
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source / file, copy)
        for copy in [path for path in self.tree.rglob("*") if path.is_file()]:
            file = copy.relative_to(self.tree)
            if file.parts[0] != "build" and file not in wanted:
                copy.unlink()

    def programs_for(self, file):
        names = [name for name in PROGRAMS[room_of(file)] if name in self.programs]
        return names[:1] if self.own_tests else names

    def make(self, programs):
        return subprocess.run(["ninja", "-C", self.build, *(self.programs[name] for name in programs)],
                              capture_output=True, text=True)

    def run(self, name):
        """Which tests of a program went red; none when all is well."""
        shutil.rmtree(self.scratch, ignore_errors=True)
        self.scratch.mkdir(parents=True)
        output = self.scratch / "output"
        with open(output, "wb") as file:
            process = subprocess.Popen(
                [self.build / self.programs[name]], cwd=self.scratch, stdin=subprocess.DEVNULL, stdout=file,
                stderr=subprocess.STDOUT, start_new_session=True, preexec_fn=self.limit,
                env=self.environment)
            try:
                code = process.wait(WALL_SECONDS)
            except subprocess.TimeoutExpired:
                code = -signal.SIGXCPU
            finally:
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
                process.wait()
        text = output.read_text(errors="replace")
        red = list(dict.fromkeys(re.findall(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", text, re.M)))
        begun = re.findall(r"^\[ RUN      \] ([\w/.]+)", text, re.M)
        if code in (-signal.SIGXCPU, -signal.SIGKILL):
            red.append(f"timeout in {begun[-1] if begun else name}")
        elif code < 0:
            red.append(f"crash in {begun[-1] if begun else name}")
        elif code != 0 and not red:
            red.append(name)
        return red

    def limit(self):
        resource.setrlimit(resource.RLIMIT_CPU, (self.cpu_seconds, self.cpu_seconds + 5))
        resource.setrlimit(resource.RLIMIT_FSIZE, (WRITTEN_BYTES, WRITTEN_BYTES))
        resource.setrlimit(resource.RLIMIT_AS, (MEMORY_BYTES, MEMORY_BYTES))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    def judge(self, change, text):
        """(outcome, red tests) of one change; the file is as it was afterwards."""
        path = self.tree / change.file
        path.write_text(text[:change.start] + change.text + text[change.end:])
        try:
            for name in self.programs_for(change.file):
                if self.make([name]).returncode != 0:
                    return "does not compile", []
                if red := self.run(name):
                    return "killed", red
            return "survived", []
        finally:
            path.write_text(text)


def source_files(source):
    top = subprocess.run(["git", "rev-parse", "--show-toplevel"], cwd=source, capture_output=True, text=True)
    if top.returncode == 0 and pathlib.Path(top.stdout.strip()) == source:
        listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=source, check=True,
                                capture_output=True, text=True).stdout.splitlines()
        return [pathlib.Path(file) for file in listed if (source / file).is_file()]
    found = [path.relative_to(source) for path in source.rglob("*") if path.is_file()]
    return [file for file in found if file.parts[0] != "build"]


def room_of(file):
    return file.split("/")[0]


# --- survivors that are explained, and results of an earlier run ---

def read_explained(path):
    """{(file, change): reason} from lines "file | before => after | reason"."""
    explained = {}
    lines = path.read_text().splitlines() if path.exists() else []
    for number, line in enumerate(lines, 1):
        if not line.strip() or line.startswith("#"):
            continue
        file, _, rest = line.partition(" | ")
        change, _, reason = rest.rpartition(" | ")
        if " => " not in change or not reason.strip():
            sys.exit(f"{path}:{number}: not \"file | before => after | reason\"")
        explained[file, change] = reason
    return explained


def say_outdated(explained, source):
    for file, change in explained:
        before = change.split(" => ")[0]
        path = source / file
        if not path.exists() or before not in one_line(path.read_text()):
            print(f"No longer there, so its line can go: {file} | {change}")


class Results:
    """One JSON line for each judged change, so that a run that was stopped goes on (--resume). Survivors are
    tried again all the same, since somebody may have written their test."""

    def __init__(self, path, resume):
        self.path = path
        self.known = {}
        if not resume:
            path.unlink(missing_ok=True)
        elif path.exists():
            for line in path.read_text().splitlines():
                entry = json.loads(line)
                key = entry["file"], entry["line"], entry["change"]
                self.known[key] = (entry["outcome"], entry["red"])

    def add(self, file, line, change, kind, outcome, red):
        with open(self.path, "a") as output:
            output.write(json.dumps({"file": file, "line": line, "change": change, "kind": kind,
                                     "outcome": outcome, "red": red}) + "\n")


# --- a run ---

def arguments():
    parser = argparse.ArgumentParser(description="Changes the code in one place at a time and runs its tests.")
    parser.add_argument("--count", type=int, default=150, help="changes that compile (150)")
    parser.add_argument("--seed", default="1", help="another seed chooses other changes (1)")
    parser.add_argument("--room", choices=PROGRAMS, action="append", help="only this room; may be repeated")
    parser.add_argument("--file", action="append", help="only this file, as in link/JobSend.cpp; may be repeated")
    parser.add_argument("--resume", action="store_true", help="take over what earlier runs saw killed")
    parser.add_argument("--first-red", action="store_true", help="end a test program at its first red test")
    parser.add_argument("--own-tests", action="store_true", help="leave out the tests of the rooms above")
    parser.add_argument("--list", action="store_true", help="only print the changes that would be tried first")
    parser.add_argument("--cpu-seconds", type=int, default=120, help="processor time of a test program (120)")
    parser.add_argument("--source", type=pathlib.Path, default=pathlib.Path(__file__).parents[1],
                        help="the project (this one)")
    return parser.parse_args()


def chosen_texts(options):
    rooms = options.room or list(PROGRAMS)
    texts = {}
    harm = list(PROGRAMS)
    for file in sorted((str(path) for path in source_files(options.source)),
                       key=lambda file: (harm.index(room_of(file)) if room_of(file) in harm else 0, file)):
        room, _, name = file.partition("/")
        if room in rooms and name.endswith(".cpp") and not name.endswith("_windows.cpp"):
            if not options.file or file in options.file:
                texts[file] = (options.source / file).read_text()
    if not texts:
        sys.exit("No such file or room.")
    return texts


def report(done, options):
    print()
    for room in PROGRAMS:
        outcomes = collections.Counter(outcome for file, outcome in done if file.startswith(room + "/"))
        if outcomes:
            print(f"{room}: " + ", ".join(f"{number} {outcome}" for outcome, number in sorted(outcomes.items())))
    outcomes = collections.Counter(outcome for _, outcome in done)
    counted = sum(outcomes.values()) - outcomes["does not compile"]
    print(f"{counted} changes (seed {options.seed}): {outcomes['killed']} killed, {outcomes['survived']} survived "
          f"without an explanation, {outcomes['explained']} explained; {outcomes['does not compile']} more did not "
          "compile.")
    return outcomes["survived"]


def main():
    options = arguments()
    options.source = options.source.resolve()
    texts = chosen_texts(options)
    explained = read_explained(options.source / "tests" / "mutation-survivors.txt")
    say_outdated(explained, options.source)
    share = shares(texts, options.count, options.seed)
    queues = {file: in_turn(changes_of(file, text), random.Random(f"{options.seed}:{file}"))
              for file, text in texts.items()}
    if options.list:
        for file, queue in queues.items():
            for change in queue[:share[file]]:
                print(f"{file} | {shown(change, texts[file])} | {change.kind}")
        return 0

    copy = Copy(options.source, options)
    needed = list(dict.fromkeys(name for file in texts for name in copy.programs_for(file)))
    print(f"Building {', '.join(needed)}", flush=True)
    if (made := copy.make(needed)).returncode != 0:
        sys.exit(made.stdout)
    for name in needed:
        if red := copy.run(name):
            sys.exit(f"{name} is red without any change: {', '.join(red)}")

    results = Results(copy.folder / "results.jsonl", options.resume)
    done = []
    for file, queue in queues.items():
        left = share[file]
        while left and queue:
            change = queue.pop(0)
            text = texts[file]
            line, change_text = text.count("\n", 0, change.start) + 1, shown(change, text)
            key = (file, line, change_text)
            outcome, red = results.known.get(key, ("survived", []))
            if outcome == "survived":
                outcome, red = copy.judge(change, text)
            results.add(file, line, change_text, change.kind, outcome, red)
            if outcome == "survived" and (file, change_text) in explained:
                outcome = "explained"
            done.append((file, outcome))
            left -= outcome != "does not compile"
            by = f" by {', '.join(red[:4])}{f' and {len(red) - 4} more' if len(red) > 4 else ''}" if red else ""
            print(f"{file}:{line}: {change.kind}: {outcome}{by}\n    {file} | {change_text}", flush=True)
    return 1 if report(done, options) else 0


if __name__ == "__main__":
    sys.exit(main())
