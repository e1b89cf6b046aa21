#pragma once

#include <QWidget>

#include <functional>
#include <vector>

/// A container that can hold any widget.
struct Container
{
    QWidget* parent = nullptr;          ///< for the constructor of the widget; may be null
    std::function<void(QWidget*)> take; ///< adds a widget, which may be a child of `parent`
    std::function<void()> open = [] {}; ///< shows the container if it is hidden
    QWidget* popUp = nullptr;           ///< the window that `open` shows, if any
};

struct ContainerKind
{
    const char* name;
    Container (*create)(QWidget* window); ///< creates the container in `window`, which owns it
};

/// All kinds of container, a plain window first.
const std::vector<ContainerKind>& ContainerKinds();
