#include "labelpattern.h"

#include "labeltext.h"

namespace cabledoc {

LabelPattern::LabelPattern(const QString &text)
    : m_lines(1)
{
    read(text);
}

void LabelPattern::read(const QString &text)
{
    for (int i = 0; i < text.size() && m_error.isEmpty();) {
        const QString two = text.mid(i, 2);
        if (two == QLatin1String("{{") || two == QLatin1String("}}") || two == QLatin1String("\\\\")) {
            addText(two.left(1));
            i += 2;
        } else if (two == QLatin1String("\\n")) {
            m_lines.append(QVector<Part>());
            i += 2;
        } else if (two.startsWith(QLatin1Char('{'))) {
            i = readField(text, i);
        } else if (two.startsWith(QLatin1Char('}'))) {
            m_error = LabelText::tr("the pattern has a \"}\" without a \"{\"; write \"}}\" for a brace");
        } else if (two.startsWith(QLatin1Char('\n'))) {
            m_lines.append(QVector<Part>());
            ++i;
        } else {
            addText(two.left(1));
            ++i;
        }
    }
}

/// Reads the field that begins at a place. Returns the place after it.
int LabelPattern::readField(const QString &text, int begin)
{
    const int end = int(text.indexOf(QLatin1Char('}'), begin));
    const QString field = text.mid(begin + 1, end - begin - 1);
    const QString name = field.section(QLatin1Char('|'), 0, 0);
    if (end < 0)
        m_error = LabelText::tr("the pattern has a \"{\" without a \"}\"; write \"{{\" for a brace");
    else if (name.isEmpty())
        m_error = LabelText::tr("the pattern has a field without a name");
    m_lines.last().append({name, field.section(QLatin1Char('|'), 1)});
    return end + 1;
}

void LabelPattern::addText(const QString &text)
{
    QVector<Part> &line = m_lines.last();
    if (line.isEmpty() || !line.constLast().field.isEmpty())
        line.append(Part());
    line.last().text += text;
}

QStringList LabelPattern::fields() const
{
    QStringList names;
    for (const QVector<Part> &line : m_lines) {
        for (const Part &part : line) {
            if (!part.field.isEmpty() && !names.contains(part.field))
                names.append(part.field);
        }
    }
    return names;
}

QStringList LabelPattern::lines(const std::function<QString(const QString &field)> &valueOf) const
{
    QStringList texts;
    for (const QVector<Part> &line : m_lines) {
        QString text;
        for (const Part &part : line) {
            const QString value = part.field.isEmpty() ? QString() : valueOf(part.field);
            text += value.isEmpty() ? part.text : value;
        }
        if (!text.isEmpty())
            texts.append(text);
    }
    return texts;
}

} // namespace cabledoc
