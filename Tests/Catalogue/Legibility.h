#pragma once

#include <QImage>
#include <QString>
#include <QVector>

class QWidget;

/// A contrast that was measured in pictures of a widget.
struct Finding
{
    QString what; ///< class of the widget, and its text
    double contrast;
    double least; ///< the smallest contrast that is legible or visible
};

using Findings = QVector<Finding>;

/// Returns the contrast of each text in a window to its background.
Findings TextContrasts(QWidget& window);

/// Returns the contrast of the edge of each control in a window to what is around it.
Findings EdgeContrasts(QWidget& window);

/// Returns the contrasts of pixels with and without keyboard focus, for each widget that takes it by Tab.
Findings FocusContrasts(QWidget& window);

/// Returns the contrasts of pixels with and without the pointer above it, for each control.
Findings HoverContrasts(QWidget& window);
