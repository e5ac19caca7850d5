# Reads what a test program has printed and prints two numbers: passed, failed. Known are the summary of a doctest
# program ("test cases: 9 | 8 passed | 1 failed | 0 skipped", with or without colours) and a line "8 passed, 1 failed". They are
# added up, but for what a line "all together: 8 passed, 1 failed" has counted already: it stands for all before it.
{ gsub(/\033\[[0-9;]*m/, "") }
/test cases:.*\|.*passed.*\|.*failed/ {
    count = split($0, parts, "|")
    for (i = 2; i <= count; ++i) {
        if (parts[i] ~ /passed/) passed += parts[i]
        if (parts[i] ~ /failed/) failed += parts[i]
    }
}
/^[0-9]+ passed, [0-9]+ failed\r?$/ { passed += $1; failed += $3 }
/^all together: [0-9]+ passed, [0-9]+ failed$/ { passed = $3; failed = $5 }
END { print passed + 0, failed + 0 }
