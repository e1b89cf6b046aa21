#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

/// A container that can hold any widget, and how it takes one.
struct Home
{
    QWidget* parent = nullptr;          ///< for the constructor of the widget; null where that has none
    std::function<void(QWidget*)> take; ///< adds a widget, which may be a child of `parent` already
    std::function<void()> open = [] {}; ///< shows what is hidden at first or was closed
    QWidget* popUp = nullptr;           ///< the window that `open` shows, if there is one
};

/// A kind of container.
struct HomeKind
{
    const char* name;
    Home (*make)(QWidget* window); ///< fills `window`, which owns the container
};

const std::vector<HomeKind>& HomeKinds();
