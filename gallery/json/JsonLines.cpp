#include "gallery/json/JsonLines.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace Gallery {

namespace {

/// Where the walk stands: one step for each open object or array.
struct Step
{
    bool array = false;
    int index = 0;
    QString name;
};

class Walk
{
public:
    explicit Walk(QHash<QString, int>& lines) : m_lines(lines) { }

    void Take(char c)
    {
        if (c == '\n')
            ++m_line;
        if (m_in_string)
            take_string(c);
        else
            take_outside(c);
    }

private:
    void take_string(char c)
    {
        if (m_escaped || c == '\\')
            m_escaped = !m_escaped;
        else if (c == '"')
            m_in_string = false;
        else
            m_text += c;
    }

    void take_outside(char c)
    {
        const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
        if (m_value_next && !blank && c != ']') {
            m_lines.insert(path(), m_line);
            m_value_next = false;
        }
        take_mark(c);
    }

    void take_mark(char c)
    {
        switch (c) {
        case '"':
            m_in_string = true;
            m_text.clear();
            break;
        case '{':
            open(false);
            break;
        case '[':
            open(true);
            break;
        case '}':
        case ']':
            m_steps.pop_back();
            m_value_next = false;
            break;
        case ':':
            m_steps.back().name = QString::fromUtf8(m_text);
            m_value_next = true;
            break;
        case ',':
            ++m_steps.back().index;
            m_value_next = m_steps.back().array;
            break;
        default:
            break;
        }
    }

    void open(bool array)
    {
        m_steps.push_back({array, 0, {}});
        m_value_next = array;
    }

    QString path() const
    {
        QStringList names;
        for (const Step& step : m_steps)
            names << (step.array ? QString::number(step.index) : step.name);
        return names.join(QLatin1Char('/'));
    }

    QHash<QString, int>& m_lines;
    std::vector<Step> m_steps;
    QByteArray m_text;
    int m_line = 1;
    bool m_value_next = true;
    bool m_in_string = false;
    bool m_escaped = false;
};

}

JsonLines::JsonLines(const QByteArray& json)
{
    Walk walk(m_lines);
    for (const char c : json)
        walk.Take(c);
}

int JsonLines::LineOf(QString path) const
{
    while (!path.isEmpty() && !m_lines.contains(path))
        path.truncate(std::max<qsizetype>(0, path.lastIndexOf(u'/')));
    return m_lines.value(path);
}

int JsonLines::LineAt(const QByteArray& json, qsizetype offset)
{
    const auto end = json.begin() + std::clamp<qsizetype>(offset, 0, json.size());
    return 1 + static_cast<int>(std::count(json.begin(), end, '\n'));
}

}
