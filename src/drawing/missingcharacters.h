#pragma once

#include "scene.h"

#include <QtCore/QStringList>
#include <QtGui/QFontMetricsF>

#include <set>

namespace cabledoc {

/// Finds the characters that no font has, so that nothing is seen of them. The fonts of drawings must be loaded.
class MissingCharacters
{
public:
    MissingCharacters();

    /// Returns the first such character of a text with its number, or an empty string.
    QString firstOf(const QString &text) const;
    /// Remembers those of a page.
    void collect(const Scene &page);
    /// Adds a warning about those that were remembered, if there are any.
    void warn(QStringList *warnings) const;

private:
    bool isMissing(uint character) const;

    const QFontMetricsF m_font;
    std::set<uint> m_missing;
};

} // namespace cabledoc
