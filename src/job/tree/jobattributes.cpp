#include "jobattributes.h"

#include "jobwords.h"

#include <QtCore/QCoreApplication>

namespace cabledoc {

namespace {

template <typename F> AttributeTable<F> cableTable()
{
    return {
        attribute<&F::id, F>(words::Id),
        attribute<&F::use, F>(words::Use),
        attribute<&F::to, F>(words::To),
        attribute<&F::from, F>(words::From),
        attribute<&F::type, F>(words::Type),
        attribute<&F::bundleName, F>(words::BundleName),
        attribute<&F::bundleNum, F>(words::BundleNum),
        attribute<&F::bundleGroupNum, F>(words::BundleGroupNum),
        attribute<&F::color, F>(words::Color),
        attribute<&F::path, F>(words::Path),
        readOnly<&F::defaultType, F>(words::DefaultType),
    };
}

template <typename F> AttributeTable<F> measurementTable()
{
    return {
        attribute<&F::status, F>(words::Status),
        attribute<&F::softwareVersion, F>(words::SoftwareVersion, WhenMissing::AddDefault),
        attribute<&F::serialNumber, F>(words::Serial, WhenMissing::AddDefault),
        attribute<&F::time, F>(words::Time),
        attribute<&F::results, F>(words::TestData, WhenMissing::AddDefault),
        attribute<&F::bertErrors, F>(words::BertErrors, WhenMissing::AddDefault),
    };
}

} // namespace

const AttributeTable<FloorFields> &floorAttributes()
{
    using F = FloorFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::pic>(words::Picture),
        attribute<&F::ceilingHeight>(words::CeilingHeight, WhenMissing::AddDefault),
        onDemand<F>(words::PictureX, QStringLiteral("0")),
        onDemand<F>(words::PictureY, QStringLiteral("0")),
        onDemand<F>(words::BackgroundOption, QStringLiteral("Center")),
    };
    return table;
}

const AttributeTable<SheetFields> &sheetAttributes()
{
    static const AttributeTable<SheetFields> table{attribute<&SheetFields::id>(words::Id)};
    return table;
}

const AttributeTable<RoomFields> &roomAttributes()
{
    using F = RoomFields;
    static const AttributeTable<F> table{
        wholeNumber<&F::x>(words::X),
        wholeNumber<&F::y>(words::Y),
        wholeNumber<&F::width>(words::Width),
        wholeNumber<&F::height>(words::Height),
        attribute<&F::id>(words::Id),
        wholeNumber<&F::roomNameX>(words::NameX),
        wholeNumber<&F::roomNameY>(words::NameY),
        attribute<&F::layer>(words::Layer, WhenMissing::AddDefault),
        attribute<&F::showRoomName>(words::ShowName, WhenMissing::AddDefault),
        attribute<&F::showDimensions>(words::ShowDimensions, WhenMissing::AddDefault),
    };
    return table;
}

const AttributeTable<CableFields> &cableAttributes()
{
    static const auto table = cableTable<CableFields>();
    return table;
}

const AttributeTable<PlannedCableFields> &plannedCableAttributes()
{
    static const auto table = cableTable<PlannedCableFields>();
    return table;
}

const AttributeTable<MeasurementFields> &measurementAttributes()
{
    static const auto table = measurementTable<MeasurementFields>();
    return table;
}

const AttributeTable<TestResultsFields> &testResultsAttributes()
{
    using F = TestResultsFields;
    static const AttributeTable<F> table = [] {
        AttributeTable<F> all = measurementTable<F>();
        all.append({attribute<&F::echo>(words::Echo, WhenMissing::AddDefault),
                    attribute<&F::next>(words::Next, WhenMissing::AddDefault),
                    attribute<&F::channel>(words::Chan, WhenMissing::AddDefault)});
        return all;
    }();
    return table;
}

const AttributeTable<StoredTestDetails> &testDetailsAttributes()
{
    using F = StoredTestDetails;
    static const AttributeTable<F> table{
        attribute<&F::time>(words::Time),
        attribute<&F::operatorName, F>(words::Operator),
        attribute<&F::limit, F>(words::Limit),
        attribute<&F::standard, F>(words::Standard),
        attribute<&F::linkType, F>(words::LinkType),
        attribute<&F::nvp, F>(words::Nvp),
        attribute<&F::temperature, F>(words::Temperature),
        attribute<&F::wireMap, F>(words::WireMap),
        attribute<&F::attachment, F>(words::Attachment),
        attribute<&F::attachmentSize, F>(words::AttachmentSize),
        attribute<&F::attachmentSha256, F>(words::AttachmentSha256),
    };
    return table;
}

const AttributeTable<TestParameter> &testParameterAttributes()
{
    using F = TestParameter;
    static const AttributeTable<F> table{
        attribute<&F::name>(words::Name),   attribute<&F::margin>(words::Margin),
        attribute<&F::value>(words::Value), attribute<&F::frequency>(words::Frequency),
        attribute<&F::pair>(words::Pair),   attribute<&F::end>(words::End),
    };
    return table;
}

QString testStatus(const QDomElement &cable)
{
    static const QString untested = testResultsAttributes().defaultText(words::Status);
    return cable.firstChildElement(words::TestResults).attribute(words::Status, untested);
}

const AttributeTable<DeviceConnectionFields> &connectionAttributes()
{
    using F = DeviceConnectionFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::to>(words::To),
        attribute<&F::from>(words::From),
        attribute<&F::type>(words::Type),
    };
    return table;
}

const AttributeTable<PortFields> &portAttributes()
{
    using F = PortFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::x>(words::X),
        attribute<&F::y>(words::Y),
        attribute<&F::use>(words::Use),
        attribute<&F::iconScale>(words::IconScale),
        attribute<&F::dropHeight>(words::DropHeight),
    };
    return table;
}

const AttributeTable<VertRunElementFields> &vertRunAttributes()
{
    using F = VertRunElementFields;
    static const AttributeTable<F> table{
        attribute<&F::id, F>(words::Id),
        attribute<&F::x, F>(words::X),
        attribute<&F::y, F>(words::Y),
        attribute<&F::use, F>(words::Use),
        attribute<&F::iconScale, F>(words::IconScale),
        attribute<&F::dropHeight, F>(words::DropHeight),
        attribute<&F::connected, F>(words::Connected),
        attribute<&F::disconnected, F>(words::Disconnected),
    };
    return table;
}

const AttributeTable<PointFields> &pointAttributes()
{
    using F = PointFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::x>(words::X),
        attribute<&F::y>(words::Y),
    };
    return table;
}

const AttributeTable<FreeTextFields> &freeTextAttributes()
{
    using F = FreeTextFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::text>(words::Text),
        attribute<&F::x>(words::X),
        attribute<&F::y>(words::Y),
        attribute<&F::fontFamily>(words::FontFamily),
        attribute<&F::fontSize>(words::FontSize),
        attribute<&F::bold>(words::Bold),
        attribute<&F::italic>(words::Italic),
        attribute<&F::color>(words::Color),
    };
    return table;
}

const AttributeTable<DeviceFields> &deviceAttributes()
{
    using F = DeviceFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id), attribute<&F::type>(words::Type),           attribute<&F::x>(words::X),
        attribute<&F::y>(words::Y),   attribute<&F::iconScale>(words::IconScale), attribute<&F::info>(words::Info),
    };
    return table;
}

const AttributeTable<ActivePortFields> &activePortAttributes()
{
    using F = ActivePortFields;
    static const AttributeTable<F> table{
        attribute<&F::id>(words::Id),
        attribute<&F::port>(words::Port),
    };
    return table;
}

const AttributeTable<ActiveTestResultFields> &activeTestResultAttributes()
{
    using F = ActiveTestResultFields;
    static const AttributeTable<F> table{
        attribute<&F::time>(words::Time),           attribute<&F::status>(words::Status),
        attribute<&F::linkSpeed>(words::LinkSpeed), attribute<&F::duplex>(words::Duplex),
        attribute<&F::address>(words::PeerAddress),
    };
    return table;
}

const AttributeTable<SiteDataFields> &siteInfoAttributes()
{
    using F = SiteDataFields;
    static const AttributeTable<F> table{
        attribute<&F::phone>(words::Phone),     attribute<&F::jobID>(words::JobID),
        attribute<&F::company>(words::Company), attribute<&F::email>(words::Email),
        attribute<&F::contact>(words::Contact),
    };
    return table;
}

QString storedCableUse(const QString &use)
{
    // This is deliberate: the use "cable box" is stored as "television".
    //: A word of the file format: it stays as it is.
    const QString cableBox = QCoreApplication::translate("JobEditor", "cable_box", "use name for Cable Box (Cblbx)");
    //: A word of the file format: it stays as it is.
    const QString television = QCoreApplication::translate("JobEditor", "TV", "short for television");
    return use == cableBox ? television : use;
}

} // namespace cabledoc
