#pragma once

#include <QScrollArea>

namespace Zelkor::Gallery {

struct Entry;

/// The page of one widget: what it is, and its states side by side in captioned cards.
class WidgetPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit WidgetPage(const Entry& entry, QWidget* parent = nullptr);
};

} // namespace Zelkor::Gallery
