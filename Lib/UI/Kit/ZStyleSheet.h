#pragma once

#include <QIcon>
#include <QString>

#include <optional>

/// A style sheet with its icons, which it names as `url(vxstyle:NAME.svg)`. GUI thread.
struct ZStyleSheet
{
    QString text;
    QString iconFolder; ///< where NAME.svg is looked for; a folder or a resource path

    /// Reads a sheet from a file or a resource. Its icons are in the folder of the same name beside it: `Dark/` for
    /// `Dark.qss`. Returns nothing and sets `error` when the sheet cannot be read.
    static std::optional<ZStyleSheet> load(const QString& fileName, QString* error = nullptr);

    /// Sets the sheet and its icons for the application, above the style "Fusion", which draws the same on all
    /// platforms. From then on, rules with the selector `[layoutDirection="1"]` follow the layout direction at run
    /// time.
    void apply() const;

    /// The icon NAME of this sheet in its plain and its disabled tint (NAME-disabled.svg).
    QIcon ownIcon(const QString& name) const;

    /// The icon NAME of the sheet applied last. It follows when another one is applied.
    static QIcon icon(const QString& name);

    /// As icon(), in the tint for accent-coloured backgrounds (NAME-on-accent.svg).
    static QIcon iconOnAccent(const QString& name);
};
