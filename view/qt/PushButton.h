#pragma once

#include "view/View.h"
#include "view/qt/Layout.h"

#include <QPushButton>

#include <string>

namespace corvellane::view {

/// The widget of a button. No shortcut, no mnemonic, never a default button; while it has the focus the space bar,
/// Return and Enter press it, once however long they are held. Performs nothing while `deaf`, nor afterwards for a
/// press made then.
class PushButton : public QPushButton, public Measurable {
public:
    PushButton(QWidget* parent, const bool& deaf);

    void present(const Button& button);

    Extent widthExtent() const override;
    Extent heightExtent(int width) const override;

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int labelWidth() const;
    int contentWidth() const;
    void paintLink();
    void paintWithSymbol();
    QSize measured() const;

    const bool& deaf_;
    Action<void()> action_;
    std::string symbol_;
    QSize size_;
    bool isLink_ = false;
    bool heard_ = false;
};

} // namespace corvellane::view
