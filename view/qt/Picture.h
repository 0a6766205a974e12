#pragma once

#include "view/View.h"

#include <QString>
#include <QWidget>

namespace corvellane::view {

/// The widget of a symbol or of an image of the resources; fills its frame.
class Picture : public QWidget {
public:
    explicit Picture(QWidget* parent)
        : QWidget(parent)
    {
    }

    void present(const QString& file, Tint tint);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString file_;
    Tint tint_ = Tint::label;
};

} // namespace corvellane::view
