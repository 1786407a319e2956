#pragma once

#include <QList>
#include <QtGlobal>

#include <functional>
#include <utility>

// The rows of a long list as the view asks for them: a row is read with the page around it,
// and the last few pages read are kept, so scrolling reads each page once and a list of any
// length holds only a few pages.
template<typename Row>
class PageCache
{
public:
    static constexpr int kPageRows = 64;
    static constexpr int kPagesKept = 4;
    // Rows first .. first + count - 1 of the list (fewer past its end), in list order.
    using Reader = std::function<QList<Row>(qint64 first, int count)>;

    void reset(qint64 rows, Reader reader)
    {
        m_rows = rows;
        m_reader = std::move(reader);
        m_pages.clear();
    }
    [[nodiscard]] qint64 size() const { return m_rows; }

    // The row, read with its page when that is not kept; null outside the list or when the
    // page could not be read.
    const Row *row(qint64 index)
    {
        if (index < 0 || index >= m_rows || !m_reader)
            return nullptr;
        const qint64 page = index / kPageRows;
        qsizetype found = -1;
        for (qsizetype i = 0; i < m_pages.size(); ++i) {
            if (m_pages[i].first == page)
                found = i;
        }
        if (found < 0) {
            const qint64 first = page * kPageRows;
            QList<Row> rows = m_reader(first, int(std::min<qint64>(kPageRows, m_rows - first)));
            m_rowsRead += rows.size();
            if (m_pages.size() >= kPagesKept)
                m_pages.removeFirst();
            m_pages.append({page, std::move(rows)});
            found = m_pages.size() - 1;
        } else if (found != m_pages.size() - 1) {
            m_pages.move(found, m_pages.size() - 1); // the most recently used goes last
            found = m_pages.size() - 1;
        }
        const QList<Row> &rows = m_pages[found].second;
        const qint64 offset = index - page * kPageRows;
        return offset < rows.size() ? &rows[offset] : nullptr;
    }

    // The row at index left the list: the rows after it move up, so the pages from its own
    // on are read again when next shown.
    void remove(qint64 index)
    {
        if (index < 0 || index >= m_rows)
            return;
        --m_rows;
        const qint64 page = index / kPageRows;
        m_pages.removeIf([page](const auto &kept) { return kept.first >= page; });
    }

    // Forgets every kept page (the rows changed in place); the next read fetches them anew.
    void invalidate() { m_pages.clear(); }

    // Rows read from the list's source since the cache was made.
    [[nodiscard]] qint64 rowsRead() const { return m_rowsRead; }

private:
    qint64 m_rows = 0;
    Reader m_reader;
    QList<std::pair<qint64, QList<Row>>> m_pages;
    qint64 m_rowsRead = 0;
};
