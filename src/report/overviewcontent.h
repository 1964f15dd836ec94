#pragma once

#include "elementnames.h"
#include "reportcontent.h"

namespace cabledoc {

struct CableGroup;

/// Who, where, and how many cables and ports.
class SummaryContent : public ReportContent
{
public:
    using ReportContent::ReportContent;

    QString title() const override { return ReportText::tr("Job information"); }
    void writeTo(const ReportSink &sink) const override;
};

/// What is built in.
class InventoryContent : public ReportContent
{
public:
    using ReportContent::ReportContent;

    QString title() const override { return ReportText::tr("Inventory"); }
    void writeTo(const ReportSink &sink) const override;

private:
    ReportGroup rooms() const;
    ReportGroup devices() const;
    ReportGroup order() const;
};

/// The cables as a table.
class ScheduleContent : public ReportContent
{
public:
    using ReportContent::ReportContent;

    QString title() const override { return ReportText::tr("Cable schedule"); }
    void writeTo(const ReportSink &sink) const override;
};

/// The notes of a job.
class NotesContent : public ReportContent
{
public:
    using ReportContent::ReportContent;

    QString title() const override { return ReportText::tr("Notes"); }
    void writeTo(const ReportSink &sink) const override;
};

/// The tests of ports in the working network.
class ActiveContent : public ReportContent
{
public:
    using ReportContent::ReportContent;

    QString title() const override { return ReportText::tr("Tests in the working network"); }
    void writeTo(const ReportSink &sink) const override;
};

} // namespace cabledoc
