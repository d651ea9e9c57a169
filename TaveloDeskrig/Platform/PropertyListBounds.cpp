#include "PropertyListBounds.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <vector>

namespace Tavelo::PropertyList
{

namespace
{

/// The object table of a binary list. All numbers in it are big-endian.
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

    struct Object {
        int kind = 0; ///< The upper half of its first byte.
        quint64 size = 0;
        qsizetype content = 0; ///< Where its content begins.
    };
    std::optional<Object> object(quint64 index) const
    {
        const std::optional<quint64> offset =
            number(static_cast<qsizetype>(m_table + index * static_cast<quint64>(m_offsetSize)), m_offsetSize);
        if (!offset || *offset >= static_cast<quint64>(m_bytes.size()))
            return std::nullopt;
        auto position = static_cast<qsizetype>(*offset);
        const int marker = static_cast<unsigned char>(m_bytes.at(position++));
        quint64 size = marker & 0xF;
        if (size == 0xF && hasSize(marker >> 4)) { // the size follows as an integer
            const std::optional<quint64> integer = number(position++, 1);
            if (!integer || (*integer >> 4) != 1 || (*integer & 0xF) > 3)
                return std::nullopt;
            const int width = 1 << (*integer & 0xF);
            const std::optional<quint64> value = number(position, width);
            if (!value || *value > static_cast<quint64>(m_bytes.size()))
                return std::nullopt;
            size = *value;
            position += width;
        }
        return Object{.kind = marker >> 4, .size = size, .content = position};
    }

    static bool isDictionary(const Object &object) { return object.kind == 0xD; }
    static bool isCollection(const Object &object)
    {
        return object.kind == 0xA || object.kind == 0xC || isDictionary(object);
    }

    /// What a collection holds (a dictionary's keys, then its values); nothing if it is damaged.
    std::optional<std::vector<quint64>> children(const Object &object) const
    {
        const quint64 count = isDictionary(object) ? object.size * 2 : object.size;
        std::vector<quint64> references;
        for (quint64 index = 0; index < count; ++index) {
            const std::optional<quint64> reference =
                number(object.content + static_cast<qsizetype>(index) * m_referenceSize, m_referenceSize);
            if (!reference || *reference >= m_count)
                return std::nullopt;
            references.push_back(*reference);
        }
        return references;
    }

    /// True for a text without NUL characters.
    bool isPlainText(const Object &object) const
    {
        const bool wide = object.kind == 6;
        if (object.kind != 5 && !wide)
            return false;
        const int width = wide ? 2 : 1;
        for (quint64 index = 0; index < object.size; ++index) {
            if (number(object.content + static_cast<qsizetype>(index) * width, width).value_or(0) == 0)
                return false;
        }
        return true;
    }

private:
    static bool hasSize(int kind) { return kind >= 4 && kind != 8; }

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

/// Walks a binary list depth first, without recursion, and looks at each object once.
class BoundsWalk
{
public:
    explicit BoundsWalk(const ObjectTable &table) : m_table(table), m_measures(table.count()) {}

    bool run()
    {
        if (!enter(m_table.top()))
            return false;
        while (!m_way.empty()) {
            Step &step = m_way.back();
            if (step.next == step.children.size()) {
                Measure &measure = m_measures[step.object];
                measure.state = Measure::known;
                ++measure.depth;
                if (measure.depth > maximumDepth)
                    return false;
                m_way.pop_back();
                continue;
            }
            const quint64 child = step.children[step.next];
            if (m_measures[child].state == Measure::unknown) {
                if (!enter(child))
                    return false;
                continue; // `step` may have moved
            }
            if (m_measures[child].state == Measure::onTheWay)
                return false;
            Measure &measure = m_measures[step.object];
            measure.depth = std::max(measure.depth, m_measures[child].depth);
            measure.nodes += m_measures[child].nodes;
            if (measure.nodes > maximumNodes)
                return false;
            ++step.next;
        }
        return true;
    }

private:
    struct Measure {
        enum { unknown, onTheWay, known } state = unknown;
        int depth = 0;
        int nodes = 1; // with all below it; at most twice the maximum
    };
    struct Step {
        quint64 object;
        std::vector<quint64> children;
        size_t next = 0;
    };

    bool enter(quint64 index)
    {
        const std::optional<ObjectTable::Object> object = m_table.object(index);
        if (!object)
            return false;
        m_measures[index].state = Measure::onTheWay;
        Step step{.object = index, .children = {}};
        if (ObjectTable::isCollection(*object)) {
            // Counted over the whole walk, since many objects may lie at one place.
            m_looked += object->size;
            if (m_looked > maximumNodes)
                return false;
            std::optional<std::vector<quint64>> children = m_table.children(*object);
            if (!children || (ObjectTable::isDictionary(*object) && !keysArePlain(*children)))
                return false;
            step.children = *std::move(children);
        }
        m_way.push_back(std::move(step));
        return true;
    }

    bool keysArePlain(const std::vector<quint64> &children)
    {
        constexpr quint64 longestKeys = quint64(16) * 1024 * 1024; // characters, of all keys together
        for (size_t index = 0; index < children.size() / 2; ++index) {
            const std::optional<ObjectTable::Object> key = m_table.object(children[index]);
            if (!key)
                return false;
            m_keyCharacters += key->size;
            if (m_keyCharacters > longestKeys || !m_table.isPlainText(*key))
                return false;
        }
        return true;
    }

    const ObjectTable &m_table;
    std::vector<Measure> m_measures; // by object
    std::vector<Step> m_way;
    quint64 m_looked = 0;
    quint64 m_keyCharacters = 0;
};

/// A look at tags and entities alone, in one pass.
bool isReadInTime(QByteArrayView xml)
{
    constexpr QByteArrayView verbatim = "<![CDATA[", verbatimEnd = "]]>";
    qsizetype textStart = 0;
    qint64 entities = 0, moved = 0;
    for (qsizetype index = 0; index < xml.size(); ++index) {
        if (xml[index] == '&') {
            ++entities;
        } else if (xml[index] == '<') {
            const bool isVerbatim = xml.sliced(index).startsWith(verbatim);
            const qsizetype end = isVerbatim ? xml.indexOf(verbatimEnd, index) : xml.indexOf('>', index);
            if (end < 0 || (!isVerbatim && end - index > longestTag))
                return false;
            index = end;
            if (isVerbatim)
                continue; // a part of the text
            moved += entities * (end - textStart);
            if (moved > mostMoved)
                return false;
            textStart = end;
            entities = 0;
        }
    }
    return true;
}

} // namespace

bool isXmlWithinBounds(const QByteArray &utf8)
{
    if (!isReadInTime(utf8))
        return false;
    QXmlStreamReader reader(utf8);
    int depth = -1; // the outermost element is the list itself
    int nodes = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (++depth > maximumDepth || ++nodes > maximumNodes)
                return false;
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
        }
    }
    return !reader.hasError();
}

bool isBinaryWithinBounds(const QByteArray &bytes)
{
    const ObjectTable table(bytes);
    return table.isGood() && BoundsWalk(table).run();
}

} // namespace Tavelo::PropertyList
