#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <algorithm>
#include <string>

// What the tests ask of every window of the program.

/// A part of one of the toolkit's own controls.
inline bool EsDeQt(const QWidget& control) {
    return control.objectName().startsWith(u"qt_") || qobject_cast<const QHeaderView*>(&control) != nullptr;
}

/// A place where the Tab key can stop.
inline bool EsParada(const QWidget& control) {
    return (control.focusPolicy() & Qt::TabFocus) != 0 && control.focusProxy() == nullptr && !EsDeQt(control);
}

/// What is said of a control when a test fails.
inline std::string Nombre(const QWidget& control) {
    return control.metaObject()->className() + (' ' + control.objectName().toStdString()) + " \"" +
           control.property("text").toString().toStdString() + '"';
}

/// A control that shows one text.
inline bool EsEtiquetaOBoton(const QWidget& control) {
    return qobject_cast<const QLabel*>(&control) != nullptr ||
           qobject_cast<const QAbstractButton*>(&control) != nullptr;
}

/// A control whose content says nothing of what it is for.
inline bool NecesitaNombre(const QWidget& control) {
    if (const auto* boton = qobject_cast<const QAbstractButton*>(&control)) {
        return boton->text().isEmpty();
    }
    return qobject_cast<const QLineEdit*>(&control) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&control) != nullptr ||
           qobject_cast<const QTextEdit*>(&control) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&control) != nullptr;
}

/// Whether a label of the window names a control.
inline bool TieneEtiqueta(const QWidget& ventana, const QWidget& control) {
    const auto etiquetas = ventana.findChildren<QLabel*>();
    return std::any_of(etiquetas.begin(), etiquetas.end(),
                       [&](const QLabel* etiqueta) { return etiqueta->buddy() == &control; });
}

/// Whether the text of a control has room. Labels that wrap need the height for the width they have.
inline bool Cabe(const QWidget& control) {
    if (const auto* etiqueta = qobject_cast<const QLabel*>(&control);
        etiqueta != nullptr && etiqueta->wordWrap()) {
        return etiqueta->height() >= etiqueta->heightForWidth(etiqueta->width());
    }
    const QSize pide = control.minimumSizeHint();
    return control.width() >= pide.width() && control.height() >= pide.height();
}
