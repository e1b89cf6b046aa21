#pragma once

#include <UI/Common/Export.h>

#include <QComboBox>

namespace Zelkor::Vx::UI {

/// A combo box that elides long texts, in the box and in its list, instead of growing with them.
///
/// `currentText()` and the accessible value return the whole text. Items, data and signals are those of `QComboBox`.
/// GUI thread only.
class VX_WIDGETS_EXPORT ClickSoundComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ClickSoundComboBox(QWidget* parent = nullptr);
    ~ClickSoundComboBox() override;

    /// Fits the longest item, up to about 40 characters.
    QSize sizeHint() const override;

    /// Fits the longest item, up to about 5 characters, or `minimumContentsLength` characters if set.
    QSize minimumSizeHint() const override;

    /// Opens the list, as wide as the box or its longest item, up to about 40 characters.
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Zelkor::Vx::UI
