#include "workshop/window/ImportDialog.h"

#include "workshop/import/SavedMapping.h"
#include "workshop/text/Letters.h"
#include "workshop/usage/TagUses.h"
#include "workshop/window/Place.h"
#include "workshop/window/Told.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace gfc::workshop {

namespace {

constexpr int MostShownOfAKind = 500;

QTreeWidgetItem* Under(QTreeWidgetItem* parent, const QString& text) {
    return new QTreeWidgetItem(parent, QStringList(text));
}

QString PlaceOf(const Tag& tag) {
    return Shown(tag.Class) + QLatin1Char(' ') + QString::number(tag.Register);
}

// As many as a person looks through, and how many more there are.
template <typename List, typename Text>
void AddSome(QTreeWidgetItem* parent, const List& list, Text text) {
    int shown = 0;
    for (const auto& each : list) {
        if (shown++ == MostShownOfAKind) {
            Under(parent, QObject::tr("... and %1 more").arg(list.size() - MostShownOfAKind));
            return;
        }
        Under(parent, text(each));
    }
}

QString TextOf(const TagChange& change) {
    QStringList what;
    const auto tell = [&](const QString& name, const QString& before, const QString& after) {
        if (before != after) {
            what += QObject::tr("%1 \"%2\" -> \"%3\"").arg(name, before, after);
        }
    };
    tell(QObject::tr("name"), Shown(change.Before.Name), Shown(change.After.Name));
    tell(QObject::tr("register"), PlaceOf(change.Before), PlaceOf(change.After));
    tell(QObject::tr("module"), Shown(change.Before.Module), Shown(change.After.Module));
    tell(QObject::tr("module type"), Shown(change.Before.ModuleType), Shown(change.After.ModuleType));
    tell(QObject::tr("description"), Shown(change.Before.Description), Shown(change.After.Description));
    return QStringLiteral("~ %1: %2").arg(Shown(change.Before.Name), what.join(QStringLiteral(", ")));
}

void AddStation(QTreeWidget* tree, const StationPlan& plan) {
    auto* item = new QTreeWidgetItem(
        tree,
        QStringList(QObject::tr("%1%2: %3 added, %4 changed, %5 removed")
                        .arg(Shown(plan.After.Name), plan.IsNew() ? QObject::tr(" (new station)") : QString())
                        .arg(plan.Added.size())
                        .arg(plan.Changed.size())
                        .arg(plan.Removed.size())));
    AddSome(item, plan.Added, [&](std::size_t at) {
        const Tag& tag = plan.Tags[at];
        return QStringLiteral("+ %1: %2 in %3").arg(Shown(tag.Name), PlaceOf(tag), Shown(tag.Module));
    });
    AddSome(item, plan.Changed, TextOf);
    AddSome(item, plan.Removed, [](const Tag& tag) { return QStringLiteral("- %1").arg(Shown(tag.Name)); });
}

} // namespace

ImportDialog::ImportDialog(std::filesystem::path project, std::filesystem::path table, QWidget* parent)
    : QDialog(parent), project_(std::move(project)), table_(std::move(table)), later_(new QTimer(this)) {
    setObjectName(QStringLiteral("ImportDialog"));
    setWindowTitle(tr("Import Tags from %1").arg(Shown(table_.filename())));
    auto* parts = new QSplitter;
    parts->addWidget(MakeWishes());
    parts->addWidget(MakePreview());
    parts->setStretchFactor(1, 1);
    parts->setSizes({400, 600});
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    // Enter in a field must never throw away what was said, not even while there is nothing to import yet.
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    import_ = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    import_->setObjectName(QStringLiteral("Import"));
    import_->setEnabled(false);
    verdict_ = new QLabel;
    verdict_->setObjectName(QStringLiteral("Verdict"));
    verdict_->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(parts, 1);
    layout->addWidget(verdict_);
    layout->addWidget(buttons);
    import_->setDefault(true);
    ResizeWithin(*this, {1000, 640});
    connect(import_, &QPushButton::clicked, this, &ImportDialog::Import);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // Every key in a field would else read the project once.
    later_->setSingleShot(true);
    later_->setInterval(250);
    connect(later_, &QTimer::timeout, this, &ImportDialog::Preview);
    QTimer::singleShot(0, this, &ImportDialog::Preview);
}

QWidget* ImportDialog::MakeWishes() {
    const auto line = [this](const char* name, const QString& empty) {
        auto* edit = new QLineEdit;
        edit->setObjectName(QLatin1String(name));
        edit->setPlaceholderText(empty);
        connect(edit, &QLineEdit::textChanged, this, &ImportDialog::Later);
        return edit;
    };
    const auto check = [this](const char* name, const QString& text) {
        auto* box = new QCheckBox(text);
        box->setObjectName(QLatin1String(name));
        connect(box, &QCheckBox::toggled, this, &ImportDialog::Later);
        return box;
    };
    mapping_ = new QComboBox;
    mapping_->setObjectName(QStringLiteral("Mapping"));
    mapping_->addItem(tr("none"));
    for (const std::string& name : SavedMappings()) {
        mapping_->addItem(Shown(name));
    }
    connect(mapping_, &QComboBox::activated, this, [this](int at) {
        Attempt(this,
                [&] { TakeWishes(at == 0 ? TableWishes{} : LoadMapping(Typed(mapping_->itemText(at)))); });
        Later();
        said_ = false; // it is kept already
    });
    auto* keep = new QPushButton(tr("&Keep as..."));
    keep->setToolTip(tr("Keep what is said here under a name, for the next table of the same tool"));
    keep->setAutoDefault(false);
    connect(keep, &QPushButton::clicked, this, &ImportDialog::Keep);
    auto* mappings = new QHBoxLayout;
    mappings->addWidget(mapping_, 1);
    mappings->addWidget(keep);

    titles_ = new QTableWidget(0, 2);
    titles_->setObjectName(QStringLiteral("Titles"));
    titles_->setHorizontalHeaderLabels({tr("Column of the table"), tr("Read as")});
    titles_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    titles_->verticalHeader()->hide();
    titles_->setMinimumHeight(180);
    titles_->setTabKeyNavigation(false);
    station_ = line("Station", tr("as the rows say"));
    module_ = line("Module", tr("as the rows say"));
    moduleType_ = line("ModuleTypes", tr("MODULE=TYPE; MODULE=TYPE"));
    direction_ = new QComboBox;
    direction_->setObjectName(QStringLiteral("Direction"));
    direction_->addItems({tr("as the rows say"), QStringLiteral("in"), QStringLiteral("out")});
    connect(direction_, &QComboBox::activated, this, &ImportDialog::Later);
    registerBase_ = line("RegisterBase", tr("found out, such as 40001"));
    encoding_ = line("Encoding", tr("found out, such as CP850"));
    ignoreUnknown_ = check("IgnoreUnknown", tr("&Leave out columns that nobody knows"));
    replace_ = check("Replace", tr("&Take out tags that the table lacks"));

    auto* wishes = new QWidget;
    auto* form = new QFormLayout(wishes);
    form->setContentsMargins(0, 0, 0, 0);
    auto* mappingLabel = new QLabel(tr("&Mapping:"));
    mappingLabel->setBuddy(mapping_);
    form->addRow(mappingLabel, mappings);
    form->addRow(titles_);
    form->addRow(ignoreUnknown_);
    form->addRow(tr("&Station:"), station_);
    form->addRow(tr("M&odule:"), module_);
    form->addRow(tr("Module t&ypes:"), moduleType_);
    form->addRow(tr("&Direction:"), direction_);
    form->addRow(tr("&Register 1 is at:"), registerBase_);
    form->addRow(tr("&Encoding:"), encoding_);
    form->addRow(replace_);
    // On a low screen, or with large letters, all of it is still reached.
    auto* scrolled = new QScrollArea;
    scrolled->setWidget(wishes);
    scrolled->setWidgetResizable(true);
    scrolled->setFrameShape(QFrame::NoFrame);
    scrolled->setFocusPolicy(Qt::NoFocus);
    return scrolled;
}

QWidget* ImportDialog::MakePreview() {
    preview_ = new QTreeWidget;
    preview_->setObjectName(QStringLiteral("Preview"));
    preview_->setHeaderLabel(tr("What would come of it"));
    // A long line is scrolled to its end, and never cut.
    preview_->header()->setStretchLastSection(false);
    preview_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return preview_;
}

ImportRequest ImportDialog::Request() const {
    ImportRequest request{table_, replace_->isChecked() ? ImportMode::Replace : ImportMode::Merge};
    TableWishes& wishes = request.Wishes;
    wishes.Columns = columns_.Columns;
    wishes.Station = Typed(station_->text());
    wishes.Module = Typed(module_->text());
    wishes.IgnoreUnknown = ignoreUnknown_->isChecked();
    wishes.Direction = direction_->currentIndex() == 0 ? "" : Typed(direction_->currentText());
    wishes.RegisterBase = ParseNumber(Typed(registerBase_->text()));
    if (!registerBase_->text().isEmpty() && !wishes.RegisterBase) {
        throw Failure("Register 1 is at: \"" + Typed(registerBase_->text()) + "\" is no whole number.");
    }
    wishes.Encoding = Typed(encoding_->text());
    for (const QString& pair : moduleType_->text().split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const TextPair parts = SplitPair(Typed(pair.trimmed()), "Module types");
        wishes.ModuleTypes.push_back({parts.Left, parts.Right});
    }
    return request;
}

void ImportDialog::TakeWishes(const TableWishes& wishes) {
    columns_.Columns = wishes.Columns;
    station_->setText(Shown(wishes.Station));
    module_->setText(Shown(wishes.Module));
    direction_->setCurrentIndex(wishes.Direction.empty() ? 0 : wishes.Direction == "in" ? 1 : 2);
    registerBase_->setText(wishes.RegisterBase ? QString::number(*wishes.RegisterBase) : QString());
    encoding_->setText(Shown(wishes.Encoding));
    ignoreUnknown_->setChecked(wishes.IgnoreUnknown);
    QStringList types;
    for (const ModuleWish& wish : wishes.ModuleTypes) {
        types += Shown(wish.Module + '=' + wish.Type);
    }
    moduleType_->setText(types.join(QStringLiteral("; ")));
}

void ImportDialog::Later() {
    said_ = true;
    import_->setEnabled(false); // what would be imported is not what is shown
    later_->start();
}

// A large table takes its time, which is told from half a second on; who breaks it off has no preview, and
// nothing imported.
Progress ImportDialog::Watched(QProgressDialog& told) {
    told.setWindowTitle(tr("I/O Workshop"));
    told.setWindowModality(Qt::WindowModal);
    told.setMinimumDuration(500);
    told.setAutoReset(false); // reading comes to its end before planning begins
    told.setValue(0);
    return [&told](double share) {
        told.setValue(static_cast<int>(share * 99));
        return !told.wasCanceled();
    };
}

void ImportDialog::ReadTable(const Progress& progress) {
    ImportRequest request = Request();
    if (read_ && readAs_ == request.Wishes.Encoding) {
        return;
    }
    request.Told = progress;
    read_.reset();
    readAt_ = ChangedAt(table_); // before it is read: what comes behind that is seen again
    read_ = ReadRequested(request);
    readAs_ = request.Wishes.Encoding;
}

void ImportDialog::Preview() {
    try {
        QProgressDialog told(tr("Reading %1...").arg(Shown(table_.filename())), tr("Cancel"), 0, 100, this);
        ImportRequest request = Request();
        request.Told = Watched(told);
        ReadTable(request.Told);
        Project project = Project::Open(project_, Access::Read);
        const ImportPlan plan = PlanTable(project, *read_, request);
        ShowTitles(plan.Titles);
        ShowPlan(plan);
    } catch (const std::exception& failure) {
        preview_->clear();
        verdict_->setText(InWindow(failure.what()));
        import_->setEnabled(false);
    }
}

// Who works by keys stands in one of the choices: they stay where the titles do.
void ImportDialog::ShowTitles(const Heading& titles) {
    const int rows = static_cast<int>(titles.Titles.size());
    const bool same = titles_->rowCount() == rows && std::ranges::equal(titles.Titles, shownTitles_);
    if (!same) {
        shownTitles_ = titles.Titles;
        titles_->setRowCount(0);
        titles_->setRowCount(rows);
    }
    for (int row = 0; row < rows; ++row) {
        const auto at = static_cast<std::size_t>(row);
        if (!same) {
            OfferColumns(row, titles.Titles[at]);
        }
        auto* choice = qobject_cast<QComboBox*>(titles_->cellWidget(row, 1));
        const Column* column = at < titles.Columns.size() ? titles.Columns[at] : nullptr;
        choice->setCurrentIndex(column == nullptr ? 0 : choice->findText(Shown(std::string(column->Title))));
    }
}

void ImportDialog::OfferColumns(int row, const std::string& theirs) {
    auto* title = new QTableWidgetItem(Shown(theirs));
    title->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    title->setToolTip(Shown(theirs));
    titles_->setItem(row, 0, title);
    auto* choice = new QComboBox;
    choice->setAccessibleName(tr("%1 is read as").arg(Shown(theirs)));
    choice->addItem(tr("left out"));
    for (const Column& column : AllColumns()) {
        choice->addItem(Shown(std::string(column.Title)));
    }
    connect(choice, &QComboBox::activated, this, [this, choice, theirs](int chosen) {
        const std::string ours = Typed(choice->itemText(chosen));
        std::erase_if(columns_.Columns, [&](const ColumnWish& wish) {
            return SameName(wish.Theirs, theirs) || SameName(wish.Ours, ours);
        });
        columns_.Columns.push_back({theirs, chosen > 0 ? ours : std::string(LeftOut)});
        Later();
    });
    titles_->setCellWidget(row, 1, choice);
    // Behind the one above it, as one reads.
    QWidget* above = row > 0 ? titles_->cellWidget(row - 1, 1) : titles_;
    setTabOrder(above, choice);
}

void ImportDialog::ShowPlan(const ImportPlan& plan) {
    preview_->clear();
    auto* how = new QTreeWidgetItem(preview_, QStringList(tr("Read as %1").arg(Shown(plan.Reading))));
    if (!plan.Note.empty()) {
        Under(how, InWindow(plan.Note));
    }
    for (const std::string& note : plan.Notes) {
        Under(how, InWindow(note));
    }
    how->setExpanded(true);
    std::size_t changing = 0;
    for (const StationPlan& station : plan.Stations) {
        for (const std::string& module : station.TakenAsVirtual) {
            Under(how, tr("module \"%1\" of %2 is taken as a Virtual Module")
                           .arg(Shown(module), Shown(station.After.Name)));
        }
        if (station.ChangesAnything()) {
            ++changing;
            AddStation(preview_, station);
        }
    }
    if (!plan.Complaints.empty()) {
        auto* faults =
            new QTreeWidgetItem(preview_, QStringList(tr("Faults: %1").arg(plan.Complaints.size())));
        AddSome(faults, plan.Complaints,
                [](const Complaint& complaint) { return InWindow(workshop::TextOf(complaint)); });
        faults->setExpanded(true);
    }
    ShowBroken(plan);
    import_->setEnabled(plan.Complaints.empty() && changing > 0);
    verdict_->setText(!plan.Complaints.empty() ? tr("Nothing can be imported before the faults are mended.")
                      : changing == 0          ? tr("The project holds all of the table already.")
                      : changing == 1          ? tr("One station would change.")
                                               : tr("%1 stations would change.").arg(changing));
}

// The stored configurations that name a tag which would be no longer what they have.
void ImportDialog::ShowBroken(const ImportPlan& plan) {
    const Project project = Project::Open(project_, Access::Read);
    for (const StationPlan& station : plan.Stations) {
        std::vector<TagUse> lost;
        const std::vector<TagUse> all = TagUsesOf(project, station.Before);
        const auto add = [&](const std::string& tag) {
            const std::vector<TagUse> uses = UsesNaming(all, tag);
            lost.insert(lost.end(), uses.begin(), uses.end());
        };
        for (const Tag& tag : station.Removed) {
            add(tag.Name);
        }
        for (const TagChange& change : station.Changed) {
            if (change.Before.Class != change.After.Class ||
                change.Before.Register != change.After.Register) {
                add(change.Before.Name);
            }
        }
        if (!lost.empty()) {
            auto* item =
                new QTreeWidgetItem(preview_, QStringList(tr("%1: stored bindings that would break: %2")
                                                              .arg(Shown(station.After.Name))
                                                              .arg(lost.size())));
            AddSome(item, lost, [](const TagUse& use) {
                return Shown(use.Tag + " (" + use.Section + ", " + use.Key + ")");
            });
            item->setExpanded(true);
        }
    }
}

void ImportDialog::Import() {
    const bool done = Attempt(this, [&] {
        QProgressDialog told(tr("Importing %1...").arg(Shown(table_.filename())), tr("Cancel"), 0, 100, this);
        ImportRequest request = Request();
        request.Told = Watched(told);
        Project project = Project::Open(project_, Access::Write);
        const ImportPlan plan = ImportTable(project, *read_, request);
        if (!plan.Complaints.empty()) {
            throw Failure("The project has changed meanwhile and takes the table no longer; see the faults.");
        }
        std::size_t tags = 0;
        for (const StationPlan& station : plan.Stations) {
            if (changed_.isEmpty() && station.ChangesAnything()) {
                changed_ = Shown(station.After.Name);
            }
            tags += station.Added.size() + station.Changed.size() + station.Removed.size();
        }
        done_ =
            tr("Imported %1; tags added, changed or removed: %2.").arg(Shown(table_.filename())).arg(tags);
    });
    if (done) {
        accept();
    } else {
        Preview();
    }
}

void ImportDialog::Keep() {
    bool given = false;
    const QString name =
        QInputDialog::getText(this, tr("Keep the mapping"), tr("Name:"), QLineEdit::Normal,
                              mapping_->currentIndex() > 0 ? mapping_->currentText() : QString(), &given);
    if (!given || name.isEmpty()) {
        return;
    }
    if (Attempt(this, [&] { SaveMapping(Typed(name), Request().Wishes); })) {
        if (mapping_->findText(name) < 0) {
            mapping_->addItem(name);
        }
        mapping_->setCurrentText(name);
        said_ = false;
    }
}

// Who comes back from the spreadsheet has mended the table there.
void ImportDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && read_ &&
        ChangedAt(table_) != readAt_) {
        read_.reset();
        import_->setEnabled(false);
        later_->start();
    }
    QDialog::changeEvent(event);
}

// Escape is soon pressed, and to name a dozen columns takes a while.
void ImportDialog::reject() {
    if (!said_ ||
        QMessageBox::question(this, tr("I/O Workshop"),
                              tr("Leave the import? What was said of the table is lost; \"Keep as...\" keeps "
                                 "it for the next time."),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes) {
        QDialog::reject();
    }
}

} // namespace gfc::workshop
