// SPDX-License-Identifier: MIT
// The callbacks that a document offers to its host. The sender comes first.
#pragma once

#include <vagrel/foundation/Enumerations.h>

#include <functional>
#include <string>
#include <vector>

namespace vagrel {

class TVGRBaseItem;
class TVGRBaseLabel;

using TNotifyEvent = std::function<void(TVGRBaseLabel&)>;
using TKSLGetFontListEvent = std::function<void(TVGRBaseLabel&, std::vector<std::u16string>& list)>;
using TKSLInfoMsgEvent = std::function<void(TVGRBaseLabel&, const std::u16string& action, const std::u16string& state)>;
using TKSLInfoSymEvent =
    std::function<void(TVGRBaseLabel&, const std::u16string& name, const std::u16string& note, TKSLUnits units)>;
using TKSLReadSymEvent = std::function<void(TVGRBaseLabel&, const std::u16string& file, bool& read)>;
using TKSLUndoRedoEvent = std::function<void(TVGRBaseLabel&, bool emptyUndo, bool emptyRedo)>;
using TKSLMouseEvent = std::function<void(TVGRBaseLabel&, TMouseButton button, TShiftState shift, float x, float y)>;
using TKSLMouseMoveEvent = std::function<void(TVGRBaseLabel&, TShiftState shift, float x, float y)>;
using TKSLGetListValues = std::function<void(TVGRBaseLabel&, const std::u16string& name,
                                             std::vector<std::u16string>& listValues, bool& fill)>;
using TKSLGMLCoordinateTransformEvent = std::function<void(TVGRBaseLabel&, int epsg, double x, double y,
                                                           double& latitude, double& longitude, bool& handled)>;
using TKSLSelectItem = std::function<void(TVGRBaseLabel&, TVGRBaseItem& item)>;

} // namespace vagrel
