#pragma once

#include <QListWidget>

#include <stdexcept>

/// The control or menu entry `name` of `form`; ends the test with that name where there is none.
template <typename Control>
Control& child(const QObject& form, const char* name)
{
    if (auto* found = form.findChild<Control*>(QLatin1String(name))) {
        return *found;
    }
    throw std::logic_error(form.metaObject()->className() + std::string(" has no ") +
                           Control::staticMetaObject.className() + ' ' + name);
}

/// The rows of `list`.
inline QStringList rowsOf(const QListWidget& list)
{
    QStringList rows;
    for (int row = 0; row < list.count(); ++row) {
        rows << list.item(row)->text();
    }
    return rows;
}
