// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/accessible_role.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QVariant>

namespace desktop {

namespace {

constexpr const char* RoleProperty = "accessibleRole";

class ButtonAccessible : public QAccessibleWidget {
public:
    ButtonAccessible(QAbstractButton* button, QAccessible::Role role)
        : QAccessibleWidget(button, role), button_(button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = role() == QAccessible::RadioButton;
        state.checked = state.checkable && button_->isChecked();
        state.selectable = role() == QAccessible::PageTab;
        state.selected = state.selectable && button_->isChecked();
        return state;
    }
    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == pressAction()) return button_->click();
        QAccessibleWidget::doAction(action);
    }

private:
    QAbstractButton* button_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    const QVariant role = object == nullptr ? QVariant() : object->property(RoleProperty);
    if (!role.isValid()) return nullptr;
    const auto wanted = static_cast<QAccessible::Role>(role.toInt());
    if (auto* button = qobject_cast<QAbstractButton*>(object)) return new ButtonAccessible(button, wanted);
    auto* widget = qobject_cast<QWidget*>(object);
    return widget == nullptr ? nullptr : new QAccessibleWidget(widget, wanted);
}

}  // namespace

void announceAs(QWidget& widget, QAccessible::Role role) {
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    static_cast<void>(installed);
    widget.setProperty(RoleProperty, static_cast<int>(role));
}

}  // namespace desktop
