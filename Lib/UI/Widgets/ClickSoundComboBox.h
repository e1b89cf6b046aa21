#pragma once

#include <UI/Common/Export.h>

#include <QComboBox>

namespace Zelkor::Vx::UI {

/// A combo box that elides texts too long for it, on its face and in its list, instead of growing with them.
///
/// `currentText()` and assistive technology have the whole text. Items, data and signals are those of `QComboBox`. GUI
/// thread only.
class VX_WIDGETS_EXPORT ClickSoundComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ClickSoundComboBox(QWidget* parent = nullptr);
    ~ClickSoundComboBox() override;

    /// The width for the longest item, up to about 40 characters.
    QSize sizeHint() const override;

    /// The width for the longest item, up to about 5 characters; for `minimumContentsLength` when that is set.
    QSize minimumSizeHint() const override;

    /// Opens the list as wide as the box or, up to about 40 characters, its longest item.
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Zelkor::Vx::UI
