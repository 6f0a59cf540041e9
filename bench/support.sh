# Shared by the benchmark scripts: sourced, never run.
source "$(dirname "${BASH_SOURCE[0]}")/../tools/support.sh"

bench="$top/build/linux/bin/vorlan-bench"

# Median: of the numbers on the standard input, one a line.
Median()
{
    sort -n | awk '{ line[NR] = $1 } END { print line[int((NR + 1) / 2)] }'
}

# Ratio <a> <b>
Ratio()
{
    awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'
}

# Milliseconds <benchmark>: of one run.
Milliseconds()
{
    "$bench" --benchmark_filter="$1" --benchmark_format=csv 2>/dev/null |
        awk -F , -v name="\"$1" 'index($0, name) == 1 { printf "%.0f\n", $3 }'
}
