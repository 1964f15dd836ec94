#pragma once

#include "cabledoc_export.h"

#include <QtCore/QString>
#include <QtCore/QVector>

class BktEditor;
class JobEditor;

namespace cabledoc {

class JobSnapshot;

/// A single value of a job or template, and its name:
///
///     name                             value
///     contractor.company               a field of the contractor: tester, company, email, phone or logo
///     contractor.address.city          a field of the address: address1, address2, city, state, zipcode or country
///     site.contact, site.address.city  a field of the site: contact, company, phone, email, jobid or the address
///     notes                            the notes
///     print.floor-plan.paper_size      a field of print settings
///     page.floor-plan.page_size        a field of page settings
///     page.floor-plan                  the page: the name of its size, such as "A3", its custom size in inches, such
///     as
///                                      "17 x 11", or "none"
///     scale.floor-plan.style           a field of scale settings
///     scale.floor-plan                 the scale: "1:100", "20 ft" (for an inch of the drawing), or "none"
///     floor.Ground.picture             the path of the background picture of the floor Ground; also picture_x and
///                                      picture_y (in pixels) and picture_option
///
/// There are print settings for job-info, network-view, inventory, floor-plan, test-schedule, detailed-cables,
/// job-notes and active-tests, and page and scale settings for network-view and floor-plan. An orientation is
/// "portrait" or "landscape". The name of a paper size may be given up to its colon, such as "A4". A template has
/// neither a site, nor notes, nor floors.
struct DocumentValue
{
    QString name; ///< its name, as in the list above
    QString text; ///< its text
};

/// Returns all values of a job. Settings that the file lacks have their defaults.
CABLEDOC_EXPORT QVector<DocumentValue> valuesOfJob(const JobSnapshot &job);
/// Returns all values of a template. Settings that the file lacks have their defaults.
CABLEDOC_EXPORT QVector<DocumentValue> valuesOfTemplate(const JobSnapshot &bkt);

/// Sets the value of a job with the given name. Returns why this cannot be done, or an empty text. If it cannot be
/// done, the job only gets what it lacks: settings, or the elements that hold the contractor or the site.
CABLEDOC_EXPORT QString setValue(JobEditor &job, const QString &name, const QString &text);
/// Sets the value of a template with the given name. Returns why this cannot be done, or an empty text. If it cannot
/// be done, the template only gets what it lacks: settings, or the element that holds the contractor.
CABLEDOC_EXPORT QString setValue(BktEditor &bkt, const QString &name, const QString &text);

} // namespace cabledoc
