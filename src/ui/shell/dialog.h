/// What the dialogs are built of.
#pragma once

class QString;
class QVBoxLayout;
class QWidget;

namespace ui {

class Button;
class Overlay;

/// Starts a dialog that asks: gives the card its width and its layout. @return the body's layout, to be filled
[[nodiscard]] QVBoxLayout* dialogBody(Overlay* dialog);
/// The foot of a dialog that asks, below what its card holds so far: "Cancel", which closes it, and the default button,
/// which is returned. @param kind  of the default button
Button* dialogFooter(Overlay* dialog, const QString& confirmText, const char* kind);

} // namespace ui
