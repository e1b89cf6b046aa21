#pragma once

#include <QWidget>

namespace Zelkor::Gallery {

struct Entry;

/// The page of one widget: what it is, its states side by side in captioned cards, and the signals that they emit.
class WidgetPage : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetPage(const Entry& entry, QWidget* parent = nullptr);
};

} // namespace Zelkor::Gallery
