/// What translucent popups share. User-interface thread only.
#pragma once

class QRectF;
class QWidget;

namespace ui {

/// Where windows aren't blended, cuts @p popup down to its @p body (in the popup's coordinates), as the margin with its
/// shadow would be black. Asks afresh each time, so call it when the popup is shown or resized.
/// @return whether it was cut; the popup then fills the body's corners before it paints the rounded body over them
bool trimWithoutCompositor(QWidget* popup, const QRectF& body, double radius);

} // namespace ui
