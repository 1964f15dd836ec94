#pragma once

#include "jobeditor_p.h"
#include "lengthestimate.h"
#include "testfiles.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

/// Gives tests access to the private data of the job document.
class JobEditorProbe
{
public:
    explicit JobEditorProbe(JobEditor &job)
        : m_inside(cabledoc::JobEditorPrivate::of(job))
    {
    }

    /// Returns the text of the document as it would be saved.
    cabledoc::xmlfile::Text savedText() const
    {
        return cabledoc::xmlfile::toText(m_inside.tree.document(), cabledoc::jobAttributeOrder());
    }
    QByteArray text() const { return savedText().bytes; }
    QDomElement root() const { return m_inside.tree.document().documentElement(); }
    QStringList floorsInBetween(const QString &tagA, const QString &tagB) const
    {
        QStringList between;
        for (const QString &tag : m_inside.tree.index().of(cabledoc::ElementKind::Floors).tags()) {
            if (cabledoc::Storey(tag, 0.0).liesBetween({tagA, 0.0}, {tagB, 0.0}))
                between.append(tag);
        }
        return between;
    }

    /// Returns whether the index equals one that is rebuilt from the tree.
    bool indexesMatchTheTree() const { return m_inside.tree.index().matchesTree(); }

    /// Returns the references to elements that do not exist, in the form "Cable1: Port7".
    QStringList danglingReferences() const
    {
        QHash<QString, QSet<QString>> tagsIn; // by list
        QVector<QDomElement> all{root()};
        for (int i = 0; i < all.size(); ++i) {
            for (QDomElement child = all.at(i).firstChildElement(); !child.isNull();
                 child = child.nextSiblingElement()) {
                all.append(child);
                tagsIn[all.at(i).tagName()].insert(child.tagName());
            }
        }
        const auto ends = tagsIn.value("Port_List") + tagsIn.value("VerticalRun_List");
        const auto passed = tagsIn.value("Point_List") + ends;
        const auto devices = tagsIn.value("Device_List") + tagsIn.value("Vertice_List");
        const struct
        {
            const char *list;
            const char *attribute;
            QSet<QString> tags;
        } rules[] = {
            {"Cable_List", "to", ends},
            {"Cable_List", "from", ends},
            {"Cable_List", "path", passed},
            {"Connection_List", "to", devices},
            {"Connection_List", "from", devices},
            {"VerticalRun_List", "connected", tagsIn.value("Cable_List")},
            {"VerticalRun_List", "disconnected", tagsIn.value("Cable_List")},
            {"ActivePort_List", "port", tagsIn.value("Port_List")},
        };
        QStringList dangling;
        for (const QDomElement &element : std::as_const(all)) {
            for (const auto &rule : rules) {
                if (element.parentNode().nodeName() != rule.list)
                    continue;
                const QStringList named = element.attribute(rule.attribute).split(',');
                for (const QString &tag : named) {
                    if (!tag.isEmpty() && !rule.tags.contains(tag))
                        dangling.append(element.tagName() + ": " + tag);
                }
            }
        }
        return dangling;
    }

private:
    cabledoc::JobEditorPrivate &m_inside;
};
