#include "ui/accessible.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace ui {

namespace {

/// Whether keys go to this widget. A popup has them without having the focus.
bool hasKeyboard(const QWidget* widget) { return widget->hasFocus() || QApplication::activePopupWidget() == widget; }

/// A painted text.
class TextInterface : public QAccessibleWidget {
 public:
  explicit TextInterface(QWidget* widget)
      : QAccessibleWidget(widget, QAccessible::StaticText), m_text(dynamic_cast<AccessibleText*>(widget)) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const QString own = QAccessibleWidget::text(kind);
    return own.isEmpty() && kind == QAccessible::Name ? m_text->shownText() : own;
  }

 private:
  AccessibleText* m_text;
};

/// A gauge, a ring, a bar, a painted button: one widget without parts.
class ControlInterface : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit ControlInterface(QWidget* widget)
      : QAccessibleWidget(widget, roleOf(widget)),
        m_value(dynamic_cast<AccessibleValue*>(widget)),
        m_button(dynamic_cast<AccessibleButton*>(widget)) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface && m_value) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value && m_value) return m_value->valueText();
    const QString own = QAccessibleWidget::text(kind);
    if (!own.isEmpty()) return own;
    if (kind == QAccessible::Name) return m_button ? m_button->buttonText() : m_value->valueText();
    // Some readers look at a name and a description and at no value text.
    if (kind == QAccessible::Description && m_value) return m_value->valueText();
    return {};
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = !m_button || !m_button->isPressable();
    state.busy = m_value && m_value->valueFraction() < 0;
    state.selectable = m_button && m_button->isChoice();
    state.selected = m_button && m_button->isChosen();
    return state;
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (canBePressed()) names.prepend(pressAction());
    return names;
  }
  void doAction(const QString& name) override {
    if (name == pressAction() && canBePressed())
      m_button->press();
    else
      QAccessibleWidget::doAction(name);
  }

  [[nodiscard]] QVariant currentValue() const override {
    const double fraction = m_value->valueFraction();
    return fraction < 0 ? QVariant() : QVariant(fraction);
  }
  void setCurrentValue(const QVariant& /*value*/) override {} // it is shown, not set
  [[nodiscard]] QVariant maximumValue() const override { return 1.0; }
  [[nodiscard]] QVariant minimumValue() const override { return 0.0; }
  [[nodiscard]] QVariant minimumStepSize() const override { return 0.0; }

 private:
  static QAccessible::Role roleOf(QWidget* widget) {
    const auto* button = dynamic_cast<AccessibleButton*>(widget);
    if (!button) return QAccessible::ProgressBar;
    return button->isPressable() ? QAccessible::Button : QAccessible::StaticText;
  }
  [[nodiscard]] bool canBePressed() const { return m_button && m_button->isPressable() && widget()->isEnabled(); }

  AccessibleValue* m_value;
  AccessibleButton* m_button;
};

/// One segment, one tile.
class ItemInterface : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  ItemInterface(QWidget* widget, int index) : m_widget(widget), m_index(index) {}

  [[nodiscard]] bool isValid() const override { return m_widget && m_index < items()->itemCount(); }
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QWindow* window() const override { return isValid() ? m_widget->window()->windowHandle() : nullptr; }
  [[nodiscard]] QAccessibleInterface* parent() const override {
    return m_widget ? QAccessible::queryAccessibleInterface(m_widget.data()) : nullptr;
  }
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

  [[nodiscard]] QAccessible::Role role() const override {
    return isValid() ? items()->itemRole() : QAccessible::NoRole;
  }
  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    if (kind == QAccessible::Name) return items()->itemAt(m_index).name;
    // Some readers look at a name and a description and at no value text.
    const bool asked = kind == QAccessible::Value || kind == QAccessible::Description;
    return asked ? items()->itemAt(m_index).value : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  [[nodiscard]] QRect rect() const override {
    if (!isValid()) return {};
    const QRect inWidget = items()->itemAt(m_index).rect;
    return {m_widget->mapToGlobal(inWidget.topLeft()), inWidget.size()};
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid) return state;
    const AccessibleItems::Item item = items()->itemAt(m_index);
    state.disabled = !m_widget->isEnabled();
    state.invisible = !item.shown || !m_widget->isVisible();
    state.focusable = item.shown && (m_widget->focusPolicy() != Qt::NoFocus || hasKeyboard(m_widget));
    state.focused = item.current && hasKeyboard(m_widget);
    state.checkable = item.checkable;
    state.checked = item.checked;
    state.selectable = item.selectable;
    state.selected = item.selected;
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  [[nodiscard]] QStringList actionNames() const override {
    if (!isValid() || !m_widget->isEnabled()) return {};
    return {items()->itemAt(m_index).checkable ? toggleAction() : pressAction()};
  }
  void doAction(const QString& name) override {
    if (actionNames().contains(name)) items()->activateItem(m_index);
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  [[nodiscard]] AccessibleItems* items() const { return dynamic_cast<AccessibleItems*>(m_widget.data()); }

  QPointer<QWidget> m_widget;
  int m_index;
};

/// A control with parts. Owns the interfaces of its parts, which are made when somebody asks for them.
class ItemsInterface : public QAccessibleWidget {
 public:
  explicit ItemsInterface(QWidget* widget)
      : QAccessibleWidget(widget, dynamic_cast<AccessibleItems*>(widget)->itemsRole()),
        m_items(dynamic_cast<AccessibleItems*>(widget)) {}
  ~ItemsInterface() override { shrink(0); }

  [[nodiscard]] int childCount() const override { return m_items->itemCount(); }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    shrink(childCount());
    if (size_t(index) >= m_children.size()) m_children.resize(size_t(index) + 1);
    QAccessible::Id& id = m_children[size_t(index)];
    // The registry owns it. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
    if (id == 0) id = QAccessible::registerAccessibleInterface(new ItemInterface(widget(), index));
    return QAccessible::accessibleInterface(id);
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* wanted) const override {
    for (int index = 0; index < int(m_children.size()); ++index)
      if (m_children[size_t(index)] && QAccessible::accessibleInterface(m_children[size_t(index)]) == wanted)
        return index;
    return -1;
  }
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
    for (int index = 0; index < childCount(); ++index)
      if (m_items->itemAt(index).rect.contains(point)) return child(index);
    return nullptr;
  }
  [[nodiscard]] QAccessibleInterface* focusChild() const override {
    if (!hasKeyboard(widget())) return nullptr;
    for (int index = 0; index < childCount(); ++index)
      if (m_items->itemAt(index).current) return child(index);
    return QAccessibleWidget::focusChild();
  }

  /// Forgets the parts from @p count on.
  void shrink(int count) const {
    for (; m_children.size() > size_t(count); m_children.pop_back())
      if (m_children.back()) QAccessible::deleteAccessibleInterface(m_children.back());
  }

 private:
  AccessibleItems* m_items;
  mutable std::vector<QAccessible::Id> m_children; ///< 0 for a part that nobody asked for yet
};

/// A control with parts of which one is chosen. Says its own name before the choice: the stock interface of combo boxes
/// gives the choice as the name where a label is expected to stand beside them.
class DropDownInterface : public ItemsInterface {
 public:
  explicit DropDownInterface(QWidget* widget)
      : ItemsInterface(widget), m_choice(dynamic_cast<AccessibleDropDown*>(widget)) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return m_choice->chosenText();
    const QString own = QAccessibleWidget::text(kind);
    return own.isEmpty() && kind == QAccessible::Name ? m_choice->chosenText() : own;
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = m_choice->isExpanded();
    state.collapsed = !state.expanded;
    return state;
  }

  // The control itself has the keyboard; its list is another window.
  [[nodiscard]] QAccessibleInterface* focusChild() const override {
    return QAccessibleWidget::focusChild(); // NOLINT(bugprone-parent-virtual-call): not that of the parts
  }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled()) names.prepend(showMenuAction());
    return names;
  }
  void doAction(const QString& name) override {
    if (name == showMenuAction() && widget()->isEnabled())
      m_choice->setExpanded(!m_choice->isExpanded());
    else
      QAccessibleWidget::doAction(name);
  }

 private:
  AccessibleDropDown* m_choice;
};

/// A dialog in the window.
class DialogInterface : public QAccessibleWidget {
 public:
  explicit DialogInterface(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Dialog) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.modal = true;
    return state;
  }
};

/// An area whose other children are left out while a dialog covers them.
class AreaInterface : public QAccessibleWidget {
 public:
  explicit AreaInterface(QWidget* widget) : QAccessibleWidget(widget), m_area(dynamic_cast<AccessibleArea*>(widget)) {}

  [[nodiscard]] int childCount() const override {
    return m_area->coveringDialog() ? 1 : QAccessibleWidget::childCount();
  }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    QWidget* dialog = m_area->coveringDialog();
    if (!dialog) return QAccessibleWidget::child(index);
    return index == 0 ? QAccessible::queryAccessibleInterface(dialog) : nullptr;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* wanted) const override {
    const QWidget* dialog = m_area->coveringDialog();
    if (!dialog) return QAccessibleWidget::indexOfChild(wanted);
    return wanted && wanted->object() == dialog ? 0 : -1;
  }

 private:
  AccessibleArea* m_area;
};

QAccessibleInterface* make(const QString& /*className*/, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (!widget) return nullptr;
  if (dynamic_cast<AccessibleDropDown*>(widget)) return new DropDownInterface(widget);
  if (dynamic_cast<AccessibleItems*>(widget)) return new ItemsInterface(widget);
  if (dynamic_cast<AccessibleValue*>(widget) || dynamic_cast<AccessibleButton*>(widget))
    return new ControlInterface(widget);
  if (dynamic_cast<AccessibleText*>(widget)) return new TextInterface(widget);
  if (dynamic_cast<AccessibleDialog*>(widget)) return new DialogInterface(widget);
  if (dynamic_cast<AccessibleArea*>(widget)) return new AreaInterface(widget);
  return nullptr;
}

} // namespace

void installAccessibility() {
  [[maybe_unused]] static const bool installed = (QAccessible::installFactory(make), true);
}

void accessibleValueChanged(QWidget* widget) {
  const auto* value = dynamic_cast<AccessibleValue*>(widget);
  if (!value) return;
  const double fraction = value->valueFraction();
  QAccessibleValueChangeEvent event(widget, fraction < 0 ? QVariant() : QVariant(fraction));
  QAccessible::updateAccessibility(&event);
}

void accessibleTextChanged(QWidget* widget) {
  QAccessibleEvent event(widget, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void accessibleExpandedChanged(QWidget* widget) {
  QAccessible::State touched;
  touched.expanded = true;
  QAccessibleStateChangeEvent event(widget, touched);
  QAccessible::updateAccessibility(&event);
}

void accessibleItemsChanged(QWidget* widget, int current) {
  const auto* parts = dynamic_cast<ItemsInterface*>(QAccessible::queryAccessibleInterface(widget));
  if (!parts) return;
  parts->shrink(parts->childCount());
  if (current < 0 || current >= parts->childCount()) {
    QAccessibleEvent reordered(widget, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&reordered);
    return;
  }
  QAccessible::State touched;
  const bool selectable = dynamic_cast<AccessibleItems*>(widget)->itemAt(current).selectable;
  touched.selected = selectable;
  touched.checked = !selectable;
  QAccessibleStateChangeEvent state(parts->child(current), touched);
  QAccessible::updateAccessibility(&state);
  if (!hasKeyboard(widget) || parts->focusChild() != parts->child(current)) return;
  QAccessibleEvent focus(widget, QAccessible::Focus);
  focus.setChild(current);
  QAccessible::updateAccessibility(&focus);
}

} // namespace ui
