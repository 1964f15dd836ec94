#pragma once

#include "scene.h"
#include "testfiles.h"

/// A job with one floor. The scale of its plans is 1:100.
inline QByteArray jobWith(const QByteArray &rooms, const QByteArray &rest = {})
{
    return "<Job><Version number=\"3.0\"/><Cable_List/><Floor_List><FFloor_1 id=\"Ground\" pic=\"\"><Room_List>" + rooms
           + "</Room_List>" + rest
           + "</FFloor_1></Floor_List><Settings_List><ScaleSettings_List><FloorPlan_Settings style=\"2\" "
             "height_units=\"1\" custom_height=\"100\"/></ScaleSettings_List></Settings_List></Job>";
}

/// Returns the shapes of a kind on a layer of a page, with their items.
template <typename Shape>
QVector<QPair<const cabledoc::SceneItem *, const Shape *>> shapesOf(const cabledoc::Scene &scene, cabledoc::Layer layer)
{
    QVector<QPair<const cabledoc::SceneItem *, const Shape *>> shapes;
    for (const cabledoc::SceneItem &item : scene.items) {
        const auto *shape = std::get_if<Shape>(&item.shape);
        if (shape != nullptr && item.layer == layer)
            shapes.append({&item, shape});
    }
    return shapes;
}
