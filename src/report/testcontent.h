#pragma once

#include "elementnames.h"
#include "reportcontent.h"

namespace cabledoc {

class TextMeasure;

/// The tests of cables.
class TestContent : public ReportContent
{
public:
    TestContent(const JobSnapshot &job, const ReportOptions &options);
    ~TestContent() override;

    QString title() const override { return ReportText::tr("Test report"); }
    void writeTo(const ReportSink &sink) const override;
    QVector<ReportOutlineEntry> outline() const override;

private:
    ReportGroup titlePage() const;
    QStringList statement() const;
    TableBlock verdictTable() const;
    TableBlock equipmentTable() const;
    QVector<int> cablesWith(const QString &verdict) const;
    TableBlock listOf(const QVector<int> &cables) const;
    ReportGroup summary() const;
    ReportGroup pageOf(int cable) const;
    FactsBlock factsOf(const snapshot::Cable &cable, const CableTest &test) const;
    TableBlock lengthTable(const snapshot::Cable &cable) const;
    ReportGroup index() const;
    QString roomName(int room) const;
    QString endText(const snapshot::Target &end) const;
    QString anchorOf(int cable) const { return QLatin1String("cable-") + job().cables().at(cable).element; }
    TestDef definitionOf(const snapshot::Cable &cable) const;

    ElementNames m_names;
    const std::unique_ptr<TextMeasure> m_measure;
};

} // namespace cabledoc
