/// One section of the sheet in the making: specimens in rows, each with a caption under it.
#pragma once

#include <QString>

class QHBoxLayout;
class QVBoxLayout;
class QWidget;

namespace gallery {

class Shelf {
 public:
  /// @param sheet   what takes the focus for specimens that are shown with it
  /// @param column  receives the rows
  Shelf(QWidget* sheet, QVBoxLayout* column) : m_sheet(sheet), m_column(column) {}

  /// Begins the next row.
  void row();
  /// Adds a specimen to the row, in its own size.
  template <typename Control>
  Control* put(Control* control, const QString& caption = {}) {
    place(control, caption, kOwnWidth);
    return control;
  }
  /// Adds a specimen of this width, in pixels.
  template <typename Control>
  Control* put(Control* control, const QString& caption, int width) {
    place(control, caption, width);
    return control;
  }
  /// The same, in its own size, with the focus.
  template <typename Control>
  Control* putFocused(Control* control, const QString& caption) {
    place(control, caption, kOwnWidth);
    focus(control);
    return control;
  }
  /// Adds a specimen that takes all the room of a row of its own.
  template <typename Control>
  Control* putWide(Control* control, const QString& caption = {}) {
    row();
    place(control, caption, kWholeRow);
    return control;
  }
  /// Makes a specimen look as if the focus had come to it by Tab.
  void focus(QWidget* control);

 private:
  static constexpr int kOwnWidth = 0;
  static constexpr int kWholeRow = -1;

  void place(QWidget* control, const QString& caption, int width);

  QWidget* m_sheet;
  QVBoxLayout* m_column;
  QHBoxLayout* m_row = nullptr;
};

} // namespace gallery
