// indexed: a table whose rows carry the enumerator that indexes them.
#pragma once
#include <cstddef>

// True when there are count rows and row i carries key first + i. For a static_assert beside the
// table.
template <typename Row, size_t N, typename Key>
constexpr bool IndexedBy(const Row (&rows)[N], Key Row::*key, size_t count, size_t first = 0)
{
    for (size_t i = 0; i < N; i++)
        if (size_t(rows[i].*key) != first + i)
            return false;
    return N == count;
}
