#!/usr/bin/env bash
# Does scripts/mutation.py tell a change that a test notices from one that none does?
#   mutation-test.sh WORK
# A toy of one function has a test that forgets the hour at the border.
set -euo pipefail
script=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/scripts/mutation.py
work=$1
rm -rf "$work"
mkdir -p "$work/link/rules" "$work/tests"
cd "$work"

fail() {
    echo "FAILED: $*"
    cat output
    exit 1
}

cat >link/rules/Hours.cpp <<'END'
// A comment with if (hour > 17) and a text are no code.
const char* title = "return hour > 17;";

bool isLate(int hour) {
    return hour > 17;
}

int rounds(int hour) {
    int count = 0;
    while (hour > count) {
        ++count;
    }
    return count;
}
END
cat >tests/HoursTest.cpp <<'END'
#include <cstdio>

bool isLate(int hour);
int rounds(int hour);

int main() {
    if (isLate(18) && !isLate(9) && rounds(3) == 3)
        return 0;
    std::puts("[  FAILED  ] HoursTest.TellsLateFromEarly");
    std::puts("[  FAILED  ] 1 test, listed below:");
    return 1;
}
END
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(Toy LANGUAGES CXX)
add_executable(link_tests link/rules/Hours.cpp tests/HoursTest.cpp)
END
cat >CMakePresets.json <<'END'
{ "version": 6, "configurePresets": [
    { "name": "dev", "generator": "Ninja", "binaryDir": "${sourceDir}/build/dev", "cacheVariables": { "VANTREL_BENCH": "OFF" } } ] }
END

said() { grep -qF -- "$1" output; }
outcome() { # of the change $1
    grep -B1 -F -- "link/rules/Hours.cpp | $1" output | head -n 1 | sed 's/^[^:]*:[0-9]*: [^:]*: //'
}
is() {
    [ "$(outcome "$1")" = "$2" ] || fail "'$1' is '$(outcome "$1")' and not '$2'"
}
run() { python3 "$script" --source "$work" --count 100 --cpu-seconds 1 "$@" >output 2>&1; }

border='return hour > 17; => return hour >= 17;'
run && fail "a survivor without an explanation is no success"
is "$border" survived
is 'return hour > 17; => return hour > 18;' 'killed by HoursTest.TellsLateFromEarly'
is 'return hour > 17; => return {};' 'killed by HoursTest.TellsLateFromEarly'
is '++count; => ;' 'killed by timeout in link_tests'
said 'const char* title' && fail "a text was changed"
cmp -s link/rules/Hours.cpp build/mutation/tree/link/rules/Hours.cpp || fail "the copy keeps a change"

cp output first
run --resume --first-red --own-tests && fail "a survivor that is taken over is still one"
diff <(grep '|' first) <(grep '|' output) >/dev/null || fail "the same seed made other changes"

# What the lines explain is none, wherever it stands now; every other one still is.
sed -n 's/^    \(link\/rules\/Hours.cpp | .*\)$/\1/p' <(grep -A1 ': survived$' output) | sort -u |
    sed 's/$/ | nobody works at the border/' >tests/mutation-survivors.txt
echo 'link/rules/Hours.cpp | gone(); => ; | it was there once' >>tests/mutation-survivors.txt
sed -i '1i // One line more above.' link/rules/Hours.cpp
run || fail "an explained survivor is a failure"
is "$border" explained
said 'No longer there, so its line can go: link/rules/Hours.cpp | gone(); => ;' || fail "an outdated line is not named"
sed -i 's/!isLate(9)/!isLate(17)/' tests/HoursTest.cpp
run --resume || fail "a survivor is not tried again when its test is there"
is "$border" 'killed by HoursTest.TellsLateFromEarly'
echo 'link/rules/Hours.cpp | without a reason' >tests/mutation-survivors.txt
run --list && fail "a line without a reason is accepted"
echo "Killed, survived, explained, endless and taken over: each is told."
