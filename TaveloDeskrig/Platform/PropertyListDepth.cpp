#include "PropertyListDepth.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <vector>

namespace Tavelo::PropertyList
{

namespace
{

/// The object table of a binary list, as far as its nesting goes. All numbers in it are big-endian.
class ObjectTable
{
public:
    explicit ObjectTable(const QByteArray &bytes) : m_bytes(bytes)
    {
        constexpr qsizetype trailerSize = 32;
        const qsizetype trailer = bytes.size() - trailerSize;
        if (trailer < 8)
            return;
        m_offsetSize = static_cast<int>(number(trailer + 6, 1).value_or(0));
        m_referenceSize = static_cast<int>(number(trailer + 7, 1).value_or(0));
        m_count = number(trailer + 8, 8).value_or(0);
        m_top = number(trailer + 16, 8).value_or(0);
        m_table = number(trailer + 24, 8).value_or(0);
        const auto size = static_cast<quint64>(bytes.size());
        m_good = m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8 &&
                 m_count > 0 && m_count <= size && m_top < m_count && m_table < size;
    }

    bool isGood() const { return m_good; }
    quint64 count() const { return m_count; }
    quint64 top() const { return m_top; }

    /// The objects that an array, a set or a dictionary holds; none for any other object, nothing if it is damaged.
    std::optional<std::vector<quint64>> children(quint64 object) const
    {
        const std::optional<quint64> offset =
            number(static_cast<qsizetype>(m_table + object * static_cast<quint64>(m_offsetSize)), m_offsetSize);
        if (!offset || *offset >= static_cast<quint64>(m_bytes.size()))
            return std::nullopt;
        auto position = static_cast<qsizetype>(*offset);
        const int marker = static_cast<unsigned char>(m_bytes.at(position++));
        const int kind = marker >> 4;
        if (kind != 0xA && kind != 0xC && kind != 0xD)
            return std::vector<quint64>();
        quint64 size = marker & 0xF;
        if (size == 0xF) { // the count follows as an integer
            const std::optional<quint64> integer = number(position++, 1);
            if (!integer || (*integer >> 4) != 1 || (*integer & 0xF) > 3)
                return std::nullopt;
            const int width = 1 << (*integer & 0xF);
            const std::optional<quint64> value = number(position, width);
            if (!value)
                return std::nullopt;
            size = *value;
            position += width;
        }
        if (size > static_cast<quint64>(m_bytes.size()))
            return std::nullopt;
        if (kind == 0xD) // keys, then values
            size *= 2;
        std::vector<quint64> references;
        for (quint64 index = 0; index < size; ++index, position += m_referenceSize) {
            const std::optional<quint64> reference = number(position, m_referenceSize);
            if (!reference || *reference >= m_count)
                return std::nullopt;
            references.push_back(*reference);
        }
        return references;
    }

private:
    std::optional<quint64> number(qsizetype position, int width) const
    {
        if (position < 0 || position > m_bytes.size() - width)
            return std::nullopt;
        quint64 value = 0;
        for (int index = 0; index < width; ++index)
            value = value << 8 | static_cast<unsigned char>(m_bytes.at(position + index));
        return value;
    }

    const QByteArray &m_bytes;
    int m_offsetSize = 0;
    int m_referenceSize = 0;
    quint64 m_count = 0;
    quint64 m_top = 0;
    quint64 m_table = 0;
    bool m_good = false;
};

} // namespace

int xmlListDepth(const QByteArray &utf8)
{
    QXmlStreamReader reader(utf8);
    int depth = 0;
    int deepest = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            deepest = std::max(deepest, ++depth);
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    // The outermost element is the list itself.
    return reader.hasError() ? endlessDepth : deepest - 1;
}

int binaryListDepth(const QByteArray &bytes)
{
    const ObjectTable table(bytes);
    if (!table.isGood())
        return endlessDepth;
    // Depth first without recursion; each object's depth is worked out once.
    constexpr int unknown = 0;
    constexpr int onTheWay = -1;
    std::vector<int> depths(table.count(), unknown);
    struct Step {
        quint64 object;
        std::vector<quint64> children;
        size_t next = 0;
        int deepest = 0;
    };
    std::vector<Step> way;
    const auto enter = [&](quint64 object) {
        std::optional<std::vector<quint64>> children = table.children(object);
        if (!children)
            return false;
        depths[object] = onTheWay;
        way.push_back({.object = object, .children = *std::move(children)});
        return true;
    };
    if (!enter(table.top()))
        return endlessDepth;
    for (;;) {
        Step &step = way.back();
        if (step.next < step.children.size()) {
            const quint64 child = step.children[step.next];
            if (depths[child] == onTheWay || (depths[child] == unknown && !enter(child)))
                return endlessDepth;
            if (depths[child] == onTheWay) // entered just now; its depth is not known yet
                continue;
            step.deepest = std::max(step.deepest, depths[child]);
            ++step.next;
            continue;
        }
        const int depth = step.deepest + 1;
        depths[step.object] = depth;
        way.pop_back();
        if (way.empty())
            return depth;
    }
}

} // namespace Tavelo::PropertyList
