#pragma once

#include "view/View.h"
#include "view/qt/Measurable.h"

#include <QPushButton>

namespace corvellane::view {

/// The widget of a button. No shortcut, no mnemonic, never a default button; the space bar presses it.
class PushButton : public QPushButton, public Measurable {
public:
    explicit PushButton(QWidget* parent);

    void present(const Button& button);
    void setAction(const Action<void()>& action) { action_ = action; }

    Extent widthExtent() const override;
    Extent heightExtent(int width) const override;

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void paintLink();

    Action<void()> action_;
    bool isLink_ = false;
};

} // namespace corvellane::view
