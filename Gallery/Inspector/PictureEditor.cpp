#include "PictureEditor.h"
#include "EditorSpinBox.h"

#include <UI/Kit/ZLineEdit.h>

#include <QFileDialog>
#include <QHBoxLayout>
#include <QImage>
#include <QPixmap>
#include <QToolButton>

namespace Zelkor::Gallery {

PropertyControl CreatePictureEditor(int type, QWidget* parent, const ValueListener& listener)
{
    auto* control = new QWidget(parent);
    auto* layout = new QHBoxLayout(control);
    auto* path = new ZLineEdit(control);
    auto* browse = new QToolButton(control);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(path, 1);
    layout->addWidget(browse);
    browse->setText(QChar(0x2026));
    browse->setFocusPolicy(Qt::StrongFocus);
    browse->setAccessibleName(Editors::tr("Choose a file"));
    control->setFocusProxy(path);
    const auto take = [=](const QString& file) {
        const QImage image(file);
        path->setToolTip(image.isNull() && !file.isEmpty() ? Editors::tr("This file is no picture") : QString());
        if (file.isEmpty() || image.isNull())
            return;
        listener(type == QMetaType::QPixmap ? QVariant(QPixmap::fromImage(image)) : QVariant(image), file);
    };
    QObject::connect(path, &ZLineEdit::originalTextChanged, control, take);
    QObject::connect(path, &QLineEdit::returnPressed, control, [=] { take(path->text()); });
    QObject::connect(browse, &QToolButton::clicked, control, [=] {
        auto* dialog = new QFileDialog(control, Editors::tr("Picture"), QString(),
                                       Editors::tr("Pictures") + " (*.png *.jpg *.jpeg *.svg *.bmp)");
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(dialog, &QFileDialog::fileSelected, path, &ZLineEdit::setOriginalText);
        dialog->open();
    });
    // Shows the path of the picture, or its size if it has no path.
    return {control, [path, type](const QVariant& value) {
                const QSize size =
                    type == QMetaType::QPixmap ? value.value<QPixmap>().size() : value.value<QImage>().size();
                path->setPlaceholderText(size.isEmpty()
                                             ? Editors::tr("No picture")
                                             : QString::fromUtf8("%1 × %2").arg(size.width()).arg(size.height()));
            }};
}

} // namespace Zelkor::Gallery
