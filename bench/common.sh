# What bench/compare and bench/growth share: building, running one workload, writing numbers.
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1
BIN=build/bench/bin
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8

build() {
    { cmake --preset bench && cmake --build --preset bench --target views_bench qt_peer; } >&2 || exit 1
}

# program workload n: the line that it prints, in a process of its own
run() {
    timeout 300 "$BIN/$1" "$2" "$3" 2>/dev/null
}

# field: its number in the line on standard input; nothing where there is none
field() {
    sed -n "s/.*\"$1\":\([0-9.e+-]*\).*/\1/p"
}

# milliseconds: three digits of them with their unit
as_time() {
    awk -v ms="${1:-0}" 'BEGIN {
        if (ms <= 0) { print "-"; exit }
        unit = "ms"
        if (ms < 0.1) { ms *= 1000; unit = "us" }
        if (ms >= 10000) { ms /= 1000; unit = "s" }
        printf (ms >= 100 ? "%.0f %s\n" : ms >= 10 ? "%.1f %s\n" : "%.2f %s\n"), ms, unit
    }'
}

# a b: how many times b a is
ratio() {
    awk -v a="${1:-0}" -v b="${2:-0}" 'BEGIN { if (b > 0) printf "%.2f\n", a / b; else print "-" }'
}
