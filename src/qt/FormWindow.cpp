#include "qt/FormWindow.h"

#include "qt/Icons.h"
#include "qt/Renderer.h"
#include "qt/Texts.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace gfc::qt {

namespace {

const Design* DesignOf(const std::string& form) {
    const auto designs = Designs();
    const auto found = std::find_if(designs.begin(), designs.end(),
                                    [&form](const Design& design) { return design.Form == form; });
    return found == designs.end() ? nullptr : &*found;
}

} // namespace

FormWindow::FormWindow(ui::Form& form, const Design* design)
    : form_(&form), held_(form.KeepAlive()), gate_(std::make_unique<FocusGate>(*this, form)) {
    SetUpContent(design == nullptr ? DesignOf(form.Name()) : design);
    Bind();
    NameForReaders();
    SetUpKeys();
}

FormWindow::~FormWindow() {
    Release();
}

void FormWindow::SetUpContent(const Design* design) {
    area_ = new QScrollArea(this);
    area_->setObjectName("layoutArea");
    area_->setFrameShape(QFrame::NoFrame);
    area_->setWidgetResizable(true);
    area_->setFocusPolicy(Qt::NoFocus);
    content_ = new QWidget(area_);
    if (design != nullptr)
        design->SetUp(*content_);
    // Taken now: the area resizes what it is given.
    if (content_->testAttribute(Qt::WA_Resized))
        designed_ = content_->size();
    content_->setObjectName("layoutContent");
    area_->setWidget(content_);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(area_);
    setObjectName(ToQt(form_->Name()));
    setWindowIcon(IconNamed("App"));
}

void FormWindow::Bind() {
    for (ui::Control* control : form_->Controls())
        BindControl(*control, WidgetNamed(control->Name()));
    RefreshAll();
    form_->SetObserver(this);
    FormChanged();
    content_->installEventFilter(this);
}

void FormWindow::BindControl(ui::Control& control, QWidget* widget) {
    auto renderer = MakeRenderer(*this, control, widget);
    if (renderer == nullptr) {
        qWarning("%s has no fitting widget for %s", form_->Name().c_str(), control.Name().c_str());
        return;
    }
    gate_->Watch(renderer->FocusWidget(), renderer->MouseWidget(), control);
    renderers_[&control] = std::move(renderer);
}

// A control whose widget does not speak for itself bears its caption, or that of the label beside it. What
// shows a text is left alone, since it is read as it stands at the time.
void FormWindow::NameForReaders() {
    for (const auto& [control, renderer] : renderers_) {
        QWidget* widget = WidgetNamed(control->Name());
        if (widget != nullptr && control->TakesFocus() && widget->accessibleName().isEmpty() &&
            qobject_cast<QAbstractButton*>(widget) == nullptr)
            widget->setAccessibleName(WithoutMnemonics(ToQt(control->Caption())));
    }
    for (const QLabel* label : content_->findChildren<QLabel*>())
        if (QWidget* named = label->buddy(); named != nullptr && named->accessibleName().isEmpty())
            named->setAccessibleName(WithoutMnemonics(label->text()));
    // The part of a widget on which the focus rests bears the name of the whole.
    for (const auto& [control, renderer] : renderers_)
        if (QWidget* part = renderer->FocusWidget(); part != nullptr && part->accessibleName().isEmpty())
            part->setAccessibleName(WidgetNamed(control->Name())->accessibleName());
}

void FormWindow::Release() {
    if (form_ == nullptr)
        return;
    for (const auto& [control, renderer] : renderers_)
        renderer->Release();
    gate_->Release();
    form_->SetObserver(nullptr);
    form_ = nullptr;
    held_.reset();
}

void FormWindow::Dismiss() {
    Release();
    hide();
    dismissed_ = true;
    if (events_ == 0)
        deleteLater();
}

FormWindow::InEvent::InEvent(FormWindow& window)
    : window_(window), form_(window.form_ == nullptr ? nullptr : window.form_->KeepAlive()) {
    ++window_.events_;
}

FormWindow::InEvent::~InEvent() {
    if (--window_.events_ == 0 && window_.dismissed_)
        window_.deleteLater();
}

Renderer* FormWindow::RendererOf(const ui::Control* control) const {
    const auto found = renderers_.find(control);
    return found == renderers_.end() ? nullptr : found->second.get();
}

QWidget* FormWindow::WidgetNamed(const std::string& name) const {
    return content_->findChild<QWidget*>(ToQt(name));
}

QMenuBar& FormWindow::MenuBar() {
    if (menuBar_ == nullptr) {
        menuBar_ = new QMenuBar(this);
        menuBar_->setObjectName("layoutMenuBar");
        menuBar_->setAccessibleName(tr("Menu bar"));
        layout()->setMenuBar(menuBar_);
    }
    return *menuBar_;
}

void FormWindow::Act(Renderer& renderer, const std::function<void()>& act) {
    if (form_ == nullptr || IsWriting())
        return;
    const InEvent going(*this);
    busy_.Note();
    act();
    if (form_ == nullptr)
        return;
    const Writing writing(*this);
    renderer.Refresh();
}

void FormWindow::RefreshAll() {
    const Writing writing(*this);
    for (const auto& [control, renderer] : renderers_)
        renderer->Refresh();
}

void FormWindow::ControlChanged(ui::Control& control) {
    busy_.Note();
    const Writing writing(*this);
    if (Renderer* renderer = RendererOf(&control); renderer != nullptr)
        renderer->Refresh();
}

void FormWindow::FormChanged() {
    const Writing writing(*this);
    setWindowTitle(ToQt(form_->Caption()));
    setAccessibleName(windowTitle());
    const auto flags = FlagsFor(windowModality());
    if (isVisible() && flags != windowFlags()) {
        setWindowFlags(flags);
        show();
    }
    if (isEnabled() == form_->Enabled())
        return;
    // A disabled window loses its focus, which must be where it was once the window is enabled again.
    if (!form_->Enabled())
        focusBeforeDisabling_ = focusWidget();
    setEnabled(form_->Enabled());
    if (form_->Enabled() && focusBeforeDisabling_ != nullptr)
        focusBeforeDisabling_->setFocus(Qt::OtherFocusReason);
}

void FormWindow::FocusMoved(ui::Control& control) {
    gate_->Settled();
    const Writing writing(*this);
    Renderer* renderer = RendererOf(&control);
    QWidget* widget = renderer == nullptr ? nullptr : renderer->FocusWidget();
    focusBeforeDisabling_ = widget;
    if (widget != nullptr && !widget->hasFocus())
        widget->setFocus(Qt::OtherFocusReason);
}

void FormWindow::TakeFocus() {
    activateWindow();
    if (form_ != nullptr && form_->FocusedControl() != nullptr)
        FocusMoved(*form_->FocusedControl());
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == content_ && event->type() == QEvent::LayoutRequest)
        GrowToContent();
    return QWidget::eventFilter(watched, event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The form says whether the window goes; where it has no close command, nothing a person does closes it.
    event->ignore();
    if (form_ == nullptr)
        return;
    const InEvent going(*this);
    (void)form_->PersonCloses();
}

} // namespace gfc::qt
