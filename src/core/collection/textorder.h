#pragma once

#include <QString>
#include <QStringView>

// The order the store sorts text in: by code point, case-sensitive ("Zappa" before "abba").
// QString compares UTF-16 units, which differs from code-point order only for characters
// beyond U+FFFF against U+E000..U+FFFF; remapping the units fixes that.
[[nodiscard]] inline bool codePointLess(QStringView a, QStringView b)
{
    const auto key = [](char16_t u) -> int {
        if (u >= 0xD800 && u < 0xE000)
            return u + 0x2000;
        if (u >= 0xE000)
            return u - 0x800;
        return u;
    };
    const qsizetype n = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t x = a[i].unicode();
        const char16_t y = b[i].unicode();
        if (x != y)
            return key(x) < key(y);
    }
    return a.size() < b.size();
}
