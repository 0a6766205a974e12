#include "view/qt/Wait.h"

#include "view/qt/Accessibility.h"
#include "view/qt/Appearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleHints>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace corvellane::view {
namespace {

constexpr std::chrono::milliseconds beat{100};
constexpr int whole = 1000;
/// Seconds that the gleam takes to cross the bar.
constexpr double crossing = 2;

/// Whether the event begins something that a person wants.
bool isPress(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TabletPress:
    case QEvent::NativeGesture:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

// Keeping people out

void InputGate::shut()
{
    if (!std::exchange(listening_, true)) {
        QCoreApplication::instance()->installEventFilter(this);
    }
    if (!std::exchange(shut_, true)) {
        dropped_.invalidate();
    }
}

void InputGate::open(bool sceneChanged)
{
    shut_ = false;
    if (!sceneChanged || !isDropped() || endsAfterwards_) {
        leave();
    }
    if (std::exchange(endsAfterwards_, false)) {
        QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
    }
}

void InputGate::leave()
{
    listening_ = false;
    QCoreApplication::instance()->removeEventFilter(this);
}

/// Whether a press at this moment is dropped.
bool InputGate::isDropped() const
{
    return shut_
        || (dropped_.isValid() && !dropped_.hasExpired(QGuiApplication::styleHints()->mouseDoubleClickInterval()));
}

bool InputGate::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Quit && shut_) {
        endsAfterwards_ = true;
        return true;
    }
    if (!isPress(*event)) {
        return false;
    }
    if (!isDropped()) {
        leave();
        return false;
    }
    dropped_.start();
    event->ignore();
    return true;
}

// Signs of life

BusyBar::BusyBar(QWidget& window)
    : QProgressBar(&window)
{
    setRange(0, whole);
    setTextVisible(false);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    nameForAssistance(*this, localized("Progress of the installation"));
    place();
    alive_.start();
}

void BusyBar::showPart(double part)
{
    setValue(static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * whole)));
    raise();
    show();
    update();
}

void BusyBar::place()
{
    constexpr int thickness = 4;
    const QRect window = parentWidget()->rect();
    setGeometry(0, window.height() - thickness, window.width(), thickness);
}

void BusyBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    painter.fillRect(rect(), colorOf(Tint::separator));
    painter.fillRect(0, 0, width() * value() / whole, height(), colorOf(Tint::blue));
    const double seconds = static_cast<double>(alive_.elapsed()) / 1000;
    const int gleam = width() / 6;
    const double at = std::fmod(seconds, crossing) / crossing * (width() + gleam) - gleam;
    QLinearGradient light(at, 0, at + gleam, 0);
    light.setColorAt(0, Qt::transparent);
    light.setColorAt(0.5, QColor(255, 255, 255, 200));
    light.setColorAt(1, Qt::transparent);
    painter.fillRect(QRectF(at, 0, gleam, height()), light);
}

// A window's wait

Wait::Wait(QWidget& window)
    : window_(window)
{
    QObject::connect(&beat_, &QTimer::timeout, &window, [this] { showLife(); });
}

Wait::~Wait()
{
    end(false);
}

void Wait::begin()
{
    deaf_ = true;
    gate_.shut();
    beat_.start(beat);
}

void Wait::showLife()
{
    if (!std::exchange(hasCursor_, true)) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    const std::optional<double> part = partDone_ ? partDone_() : std::nullopt;
    if (part) {
        if (bar_ == nullptr) {
            bar_ = std::make_unique<BusyBar>(window_);
        }
        bar_->showPart(*part);
    }
}

void Wait::end(bool sceneChanged)
{
    if (!std::exchange(deaf_, false)) {
        return;
    }
    beat_.stop();
    bar_ = nullptr;
    if (std::exchange(hasCursor_, false)) {
        QGuiApplication::restoreOverrideCursor();
    }
    gate_.open(sceneChanged);
}

void Wait::place()
{
    if (bar_ != nullptr) {
        bar_->place();
    }
}

} // namespace corvellane::view
