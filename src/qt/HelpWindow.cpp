#include "qt/HelpWindow.h"

#include "qt/HelpContents.h"
#include "qt/HelpHits.h"
#include "qt/HelpView.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>
#include <initializer_list>

namespace gfc::qt {

namespace {

constexpr const char* windowName = "HelpWindow";

template <class W>
W* WithNames(W* widget, const char* name, const QString& accessibleName) {
    widget->setObjectName(name);
    widget->setAccessibleName(accessibleName);
    return widget;
}

QToolButton* Button(const char* name, const QString& text, Qt::ArrowType arrow) {
    auto* button = WithNames(new QToolButton, name, text);
    button->setText(text);
    button->setArrowType(arrow);
    button->setToolButtonStyle(arrow == Qt::NoArrow ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

// For the contents and lines of a readable length beside them, whatever the font, if the screen is large
// enough.
QSize FittingSize(const QWidget& window) {
    const QFontMetrics font = window.fontMetrics();
    const QSize wished(160 * font.averageCharWidth(), 46 * font.lineSpacing());
    const QScreen* screen = window.screen();
    return screen == nullptr ? wished : wished.boundedTo(screen->availableSize() * 9 / 10);
}

// The one that is open, or a new one, which deletes itself when it is closed.
HelpWindow& WindowOver(const QString& folder, QWidget* owner) {
    auto* window = dynamic_cast<HelpWindow*>(SideWindow::Named(windowName));
    const bool isNew = window == nullptr;
    if (isNew)
        window = new HelpWindow(folder);
    window->StandOver(owner);
    if (isNew)
        window->StandWithinScreen();
    return *window;
}

void Raise(HelpWindow& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

HelpWindow::HelpWindow(const QString& folder)
    : SideWindow(windowName), folder_(folder), book_(folder), view_(new HelpView(this)),
      words_(new QLineEdit), found_(new QLabel), side_(new QStackedWidget),
      contents_(new HelpContents(book_)), hits_(new HelpHits) {
    setWindowTitle(QStringLiteral("Help"));
    setAccessibleName(windowTitle());
    WithNames(view_, "HelpPage", QStringLiteral("Page"));
    WithNames(words_, "HelpWords", QStringLiteral("Search the manual"));
    WithNames(contents_, "HelpContents", QStringLiteral("Contents"));
    WithNames(hits_, "HelpHits", QStringLiteral("Pages found"));
    found_->setObjectName("HelpFound");
    resize(FittingSize(*this));
    AddParts();
    AddActions();
    Follow();
}

void HelpWindow::AddParts() {
    auto* whole = new QVBoxLayout(this);
    AddBar(*whole);
    auto* split = new QSplitter(this);
    auto* left = new QWidget(split);
    auto* side = new QVBoxLayout(left);
    side->setContentsMargins(0, 0, 0, 0);
    AddSide(*side);
    split->addWidget(view_);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(1, 1);
    split->setSizes({contents_->WidthOfTitles(), width() - contents_->WidthOfTitles()});
    whole->addWidget(split, 1);
    setTabOrder(contents_, hits_);
    setTabOrder(hits_, view_);
}

void HelpWindow::AddBar(QBoxLayout& whole) {
    auto* bar = new QHBoxLayout;
    auto* back = Button("HelpBack", QStringLiteral("Back"), Qt::LeftArrow);
    auto* forward = Button("HelpForward", QStringLiteral("Forward"), Qt::RightArrow);
    auto* home = Button("HelpHome", QStringLiteral("Contents"), Qt::NoArrow);
    words_->setPlaceholderText(QStringLiteral("Search the manual (Ctrl+F)"));
    words_->setClearButtonEnabled(true);
    for (QWidget* part : std::initializer_list<QWidget*>{back, forward, home})
        bar->addWidget(part);
    bar->addWidget(words_, 1);
    whole.addLayout(bar);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(view_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(view_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(back, &QToolButton::clicked, view_, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, view_, &QTextBrowser::forward);
    connect(home, &QToolButton::clicked, this, [this] { ShowContext(0); });
}

void HelpWindow::AddSide(QBoxLayout& side) {
    side_->addWidget(contents_);
    side_->addWidget(hits_);
    found_->setWordWrap(true);
    found_->hide();
    side.addWidget(found_);
    side.addWidget(side_);
}

void HelpWindow::AddAction(const QString& name, const QKeySequence& key, std::function<void()> act) {
    auto* action = new QAction(name, this);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, std::move(act));
    addAction(action);
}

void HelpWindow::AddActions() {
    AddAction(QStringLiteral("Contents"), Qt::Key_F1, [this] { ShowContext(0); });
    AddAction(QStringLiteral("Back"), QKeySequence::Back, [this] { view_->backward(); });
    AddAction(QStringLiteral("Forward"), QKeySequence::Forward, [this] { view_->forward(); });
    AddAction(QStringLiteral("Search"), QKeySequence::Find, [this] {
        words_->setFocus();
        words_->selectAll();
    });
    AddAction(QStringLiteral("Next"), Qt::Key_F3, [this] { view_->GoToMark(false); });
    AddAction(QStringLiteral("Previous"), Qt::SHIFT | Qt::Key_F3, [this] { view_->GoToMark(true); });
    AddAction(QStringLiteral("Larger"), QKeySequence::ZoomIn, [this] { view_->zoomIn(); });
    AddAction(QStringLiteral("Smaller"), QKeySequence::ZoomOut, [this] { view_->zoomOut(); });
}

void HelpWindow::Follow() {
    connect(contents_, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* item) { ShowFile(HelpContents::FileOf(item)); });
    connect(view_, &QTextBrowser::sourceChanged, this, &HelpWindow::SelectShown);
    connect(words_, &QLineEdit::textChanged, this, &HelpWindow::Search);
    connect(words_, &QLineEdit::returnPressed, this, &HelpWindow::EnterHits);
    const auto show = [this](const QListWidgetItem* hit) { ShowFile(HelpHits::FileOf(hit)); };
    connect(hits_, &QListWidget::currentItemChanged, this, show);
    connect(hits_, &QListWidget::itemClicked, this, show);
    // A page that was found opens where the words first stand.
    connect(hits_, &QListWidget::currentItemChanged, view_, [this] { view_->GoToMark(false); });
}

void HelpWindow::ShowFile(const QString& file) {
    if (file.isEmpty())
        return;
    const QUrl page = QUrl::fromLocalFile(QDir(folder_).filePath(file));
    if (view_->source().adjusted(QUrl::RemoveFragment) != page)
        view_->setSource(page);
}

void HelpWindow::ShowContext(int context) {
    ShowPage(book_.PageOf(context));
}

void HelpWindow::ShowForm(const QString& form) {
    ShowPage(book_.PageOfForm(form));
}

void HelpWindow::ShowPage(const HelpPage* page) {
    if (page == nullptr)
        return SayThatThereIsNone();
    words_->clear();
    ShowFile(page->File);
    view_->setFocus();
}

void HelpWindow::SelectShown(const QUrl& source) {
    const QString file = source.fileName();
    contents_->Select(file);
    const HelpPage* page = book_.PageIn(file);
    setWindowTitle(page == nullptr ? QStringLiteral("Help") : QStringLiteral("Help: ") + page->Title);
}

void HelpWindow::Search(const QString& words) {
    const bool any = !WordsOf(words).isEmpty();
    view_->Mark(WordsOf(words));
    found_->setVisible(any);
    side_->setCurrentWidget(any ? static_cast<QWidget*>(hits_) : contents_);
    ShowHits(words);
}

void HelpWindow::ShowHits(const QString& words) {
    const auto hits = book_.Find(words);
    hits_->Show(hits);
    const auto count = static_cast<int>(hits.size());
    found_->setText(count == 0   ? QStringLiteral("No page has these words.")
                    : count == 1 ? QStringLiteral("1 page found")
                                 : QStringLiteral("%1 pages found").arg(count));
}

void HelpWindow::EnterHits() {
    if (hits_->count() == 0)
        return;
    hits_->setFocus();
    hits_->setCurrentRow(0);
}

void HelpWindow::SayThatThereIsNone() {
    side_->hide();
    words_->setEnabled(false);
    view_->setHtml(
        QStringLiteral(
            "<h2>The manual is not installed</h2><p>Its pages belong in the folder</p><p><b>%1</b></p>"
            "<p>Install the program again, or put the folder <i>manual</i> of its package there. "
            "The program itself works without it.</p>")
            .arg(QDir::toNativeSeparators(folder_).toHtmlEscaped()));
}

QString ManualFolder() {
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("gfc-manual"));
}

void ShowHelpWindow(const QString& folder, int context, QWidget* owner) {
    HelpWindow& window = WindowOver(folder, owner);
    window.ShowContext(context);
    Raise(window);
}

void ShowHelpWindow(const QString& folder, const QString& form, QWidget* owner) {
    HelpWindow& window = WindowOver(folder, owner);
    window.ShowForm(form);
    Raise(window);
}

} // namespace gfc::qt
