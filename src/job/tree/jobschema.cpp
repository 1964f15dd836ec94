#include "jobschema.h"

#include "jobwords.h"

#include <algorithm>

namespace cabledoc {

using Element = ElementKind;

const Kind<CableFields> &cableKind()
{
    static const Kind<CableFields> row(
        Element::Cables, Element::None, {words::CableList}, ListCreation::WithHolder, words::CableTagPrefix,
        cableAttributes(), {},
        {{{words::From, words::To}, {Element::Ports, Element::VerticalRuns}, Reference::RemoveElement},
         {{words::Path}, {Element::Points, Element::Ports, Element::VerticalRuns}, Reference::ForgetTag}},
        Setters::ChangeAttributes);
    return row;
}

const Kind<DeviceConnectionFields> &connectionKind()
{
    static const Kind<DeviceConnectionFields> row(
        Element::Connections, Element::None, {words::ConnectionList}, ListCreation::WithHolder,
        words::ConnectionTagPrefix, connectionAttributes(), {},
        {{{words::From, words::To}, {Element::Devices, Element::Vertices}, Reference::RemoveElement}},
        Setters::ChangeAttributes);
    return row;
}

const Kind<SheetFields> &sheetKind()
{
    static const Kind<SheetFields> row(Element::Sheets, Element::None, {words::SheetList}, ListCreation::WithHolder,
                                       words::SheetTagPrefix, sheetAttributes());
    return row;
}

const Kind<DeviceFields> &deviceKind()
{
    static const Kind<DeviceFields> row(Element::Devices, Element::Sheets, {words::DeviceList},
                                        ListCreation::WithHolderOrElement, words::DeviceTagPrefix, deviceAttributes(),
                                        {&DeviceFields::sheet});
    return row;
}

const Kind<PointFields> &verticeKind()
{
    static const Kind<PointFields> row(Element::Vertices, Element::Sheets, {words::VerticeList},
                                       ListCreation::WithHolderOrElement, words::VerticeTagPrefix, pointAttributes(),
                                       {&PointFields::parent});
    return row;
}

const Kind<FreeTextFields> &freeTextKind()
{
    static const Kind<FreeTextFields> row(Element::FreeTexts, Element::Sheets, {words::FreeTextList},
                                          ListCreation::WithHolderOrElement, words::FreeTextTagPrefix,
                                          freeTextAttributes(), {&FreeTextFields::parent});
    return row;
}

const Kind<FloorFields> &floorKind()
{
    static const Kind<FloorFields> row(Element::Floors, Element::None, {words::FloorList}, ListCreation::WithHolder,
                                       words::FloorTagPrefix, floorAttributes());
    return row;
}

const Kind<RoomFields> &roomKind()
{
    static const Kind<RoomFields> row(Element::Rooms, Element::Floors, {words::RoomList}, ListCreation::WithHolder,
                                      words::RoomTagPrefix, roomAttributes(), {&RoomFields::floor});
    return row;
}

const Kind<PortFields> &portKind()
{
    static const Kind<PortFields> row(Element::Ports, Element::Rooms, {words::PortList},
                                      ListCreation::WithHolderOrElement, words::PortTagPrefix, portAttributes(),
                                      {&PortFields::room, &PortFields::floor});
    return row;
}

const Kind<ActivePortFields> &activePortKind()
{
    static const Kind<ActivePortFields> row(
        Element::ActivePorts, Element::None, {words::ActiveNetworkTestList, words::ActivePortList},
        ListCreation::WithHolderOrElement, words::ActivePortTagPrefix, activePortAttributes(), {},
        {{{words::Port}, {Element::Ports}, Reference::RemoveElement}});
    return row;
}

const Kind<VertRunElementFields> &vertRunKind()
{
    using Fields = VertRunElementFields;
    static const Kind<Fields> row(Element::VerticalRuns, Element::Rooms, {words::VerticalRunList},
                                  ListCreation::WithHolderOrElement, words::VertRunTagPrefix, vertRunAttributes(),
                                  {&Fields::room, &Fields::floor},
                                  {{{words::Connected, words::Disconnected}, {Element::Cables}, Reference::ForgetTag}});
    return row;
}

const Kind<PointFields> &pointKind()
{
    static const Kind<PointFields> row(Element::Points, Element::Floors, {words::PointList}, ListCreation::WithElement,
                                       words::PointTagPrefix, pointAttributes(), {&PointFields::parent});
    return row;
}

const Kind<FreeTextFields> &floorFreeTextKind()
{
    static const Kind<FreeTextFields> row(Element::FloorFreeTexts, Element::Floors, {words::FreeTextList},
                                          ListCreation::WithElement, words::FloorFreeTextTagPrefix,
                                          freeTextAttributes(), {&FreeTextFields::parent});
    return row;
}

const std::array<const ElementSchema *, kindCount> &jobSchema()
{
    static const std::array<const ElementSchema *, kindCount> rows{
        &cableKind(),    &connectionKind(), &sheetKind(),         &deviceKind(), &verticeKind(),
        &freeTextKind(), &floorKind(),      &roomKind(),          &portKind(),   &activePortKind(),
        &vertRunKind(),  &pointKind(),      &floorFreeTextKind(),
    };
    return rows;
}

const ElementSchema &schemaOf(ElementKind kind)
{
    return *jobSchema()[std::size_t(kind)];
}

QStringList Reference::tagsIn(const QString &text) const
{
    if (whenGone == ForgetTag)
        return entriesIn(text);
    return text.isEmpty() ? QStringList() : QStringList(text);
}

const QVector<ElementKind> &ElementSchema::targetsOf(const QString &attribute) const
{
    return std::find_if(references.cbegin(), references.cend(),
                        [&attribute](const Reference &reference) { return reference.attributes.contains(attribute); })
        ->targets;
}

ElementKind kindOf(const QDomElement &element)
{
    const QString listName = element.parentNode().nodeName();
    for (const ElementSchema *row : jobSchema()) {
        if (row->listName() != listName)
            continue;
        QDomNode holder = element;
        for (int level = 0; level <= row->list.size(); ++level)
            holder = holder.parentNode();
        // The name of the list is not enough, because sheets and floors both have a list of texts.
        const bool isHolder = row->holder == ElementKind::None ? holder.parentNode().isDocument()
                                                               : kindOf(holder.toElement()) == row->holder;
        if (isHolder)
            return row->kind;
    }
    return ElementKind::None;
}

QVector<QDomElement> listsOf(const ElementSchema &kind, const QDomElement &root,
                             QVector<QDomElement> (*childrenOf)(const QDomElement &list))
{
    if (kind.holder == ElementKind::None)
        return {kind.listIn(root)};
    QVector<QDomElement> lists;
    for (const QDomElement &holderList : listsOf(schemaOf(kind.holder), root, childrenOf)) {
        for (const QDomElement &holder : childrenOf(holderList))
            lists.append(kind.listIn(holder));
    }
    return lists;
}

const QStringList &namingAttributes()
{
    static const QStringList names = [] {
        QStringList all;
        for (const ElementSchema *row : jobSchema()) {
            for (const Reference &reference : row->references)
                all += reference.attributes;
        }
        all.removeDuplicates();
        return all;
    }();
    return names;
}

const FileAttributes &jobFileAttributes()
{
    static const FileAttributes attributes = [] {
        FileAttributes all = documentFileAttributes();
        for (const ElementSchema *row : jobSchema())
            all.inList.insert(row->listName(), &row->attributes);
        all.ofElement.insert(words::ActiveTestResult, &activeTestResultAttributes());
        all.ofElement.insert(words::TestResults, &testResultsAttributes());
        all.ofElement.insert(words::EarlierTest, &testResultsAttributes());
        all.ofElement.insert(words::TestDetails, &testDetailsAttributes());
        all.ofElement.insert(words::TestParameter, &testParameterAttributes());
        all.ofElement.insert(words::SiteInfo, &siteInfoAttributes());
        return all;
    }();
    return attributes;
}

const xmlfile::AttributeOrder &jobAttributeOrder()
{
    static const xmlfile::AttributeOrder order = attributeOrder(jobFileAttributes());
    return order;
}

} // namespace cabledoc
