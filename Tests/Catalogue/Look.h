#pragma once

#include <Catalogue/Catalogue.h>

#include <QStringList>
#include <QWidget>

#include <functional>

class QObject;

/// A window that lays out one widget of the catalogue at its size hint. It never is the active window, so that two of
/// them look alike.
class Stage : public QWidget
{
public:
    explicit Stage(std::function<QWidget*(QWidget* parent)> create);
    Stage(const Zelkor::Catalogue::Entry& entry, const Zelkor::Catalogue::State& state);

    /// Shows the window and processes what follows from that.
    void Show();

    QWidget* widget;

    /// What the catalogue's entry is about: the widget, a part of it or an effect.
    QObject* Subject(const Zelkor::Catalogue::Entry& entry) const;
};

/// The accessible tree of a widget, one line for each visible interface: role, name, description, value, state and
/// rectangle relative to the widget.
QStringList AccessibleTree(QWidget* widget);

/// Empty when both look and sound alike, after at most the time that animations take; else the first difference.
/// `pixelRatio` is that of the pictures.
QString Difference(Stage& changed, Stage& made, qreal pixelRatio = 1);
