#pragma once

#include "cabledoc_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QRectF>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtGui/QPixmap>

class QPainter;

namespace cabledoc {

/// A vocabulary: words that documents store and that a user interface offers for choice. Each word has a name in the
/// user's language and a picture.
///
/// A word is found only in the exact form in which it is stored: "tv" is not "TV".
class CABLEDOC_EXPORT Vocabulary
{
public:
    /// Returns the vocabulary of what ports are used for: "data", "voice", "TV" and so on.
    static const Vocabulary &portUses();
    /// Returns the vocabulary of device types: "computer", "switch", "panel" and so on.
    static const Vocabulary &deviceTypes();

    /// Returns all words in the order in which a user interface offers them. The last one is "other".
    QStringList words() const;
    /// Returns whether the word is in the vocabulary.
    bool contains(const QString &word) const;
    /// Returns the translated name of the word, or the word itself if it is not in the vocabulary.
    QString name(const QString &word) const;
    /// Paints the picture of the word into the largest square in the middle of the area, in the coordinates of the
    /// painter. Paints the picture of "other" if the word is not in the vocabulary. The state of the painter is kept.
    void paint(QPainter *painter, const QString &word, const QRectF &area) const;
    /// Returns the picture of the word as an SVG file with a square view box. Returns the picture of "other" if the
    /// word is not in the vocabulary.
    QByteArray svg(const QString &word) const;
    /// Returns the picture of the word on a transparent square with sides of size device pixels. Returns the picture of
    /// "other" if the word is not in the vocabulary, and a null pixmap for a size below 1.
    ///
    /// The picture is drawn again with each call. The program must have a QGuiApplication.
    QPixmap pixmap(const QString &word, int size) const;

private:
    struct Entry
    {
        QString word;
        const char *name; // not translated
    };

    Vocabulary(const char *context, const QString &pictures, const QVector<Entry> &entries);
    /// Returns the name of the picture file of a word.
    QString fileName(const QString &word) const;
    const Entry *find(const QString &word) const;

    // Context of the translations of the names.
    const char *m_context;
    // First part of the names of the picture files.
    QString m_pictures;
    QVector<Entry> m_entries;
};

} // namespace cabledoc
