#include "workshop/store/Tags.h"

namespace gfc::workshop {

namespace {

constexpr const char* TagsOfStation = "SELECT t.name, t.class, t.register, m.name, m.type, t.description "
                                      "FROM tags t JOIN modules m ON m.id = t.module WHERE t.station = ?";

TagView ViewOf(const Statement& row) {
    return {row.Text(0), row.Text(1), static_cast<std::int32_t>(row.Integer(2)),
            row.Text(3), row.Text(4), row.Text(5)};
}

Tag TagOf(const TagView& view) {
    return {std::string(view.Name),   std::string(view.Class),      view.Register,
            std::string(view.Module), std::string(view.ModuleType), std::string(view.Description)};
}

std::optional<Tag> NextTag(Statement& query) {
    return query.Step() ? std::optional(TagOf(ViewOf(query))) : std::nullopt;
}

std::int64_t LastPlace(Project& project, std::int64_t station) {
    Statement query(project.Data(), "SELECT coalesce(max(place), 0) FROM tags WHERE station = ?");
    return query.With(station).Step() ? query.Integer(0) : 0;
}

} // namespace

void VisitTags(Project& project, std::int64_t station, const std::function<void(std::size_t)>& expect,
               const std::function<void(const TagView&)>& take) {
    expect(CountTags(project, station));
    Statement query(project.Data(), std::string(TagsOfStation) + " ORDER BY t.place");
    query.With(station);
    while (query.Step()) {
        take(ViewOf(query));
    }
}

std::vector<Tag> ListTags(Project& project, std::int64_t station) {
    std::vector<Tag> tags;
    VisitTags(
        project, station, [&](std::size_t count) { tags.reserve(count); },
        [&](const TagView& tag) { tags.push_back(TagOf(tag)); });
    return tags;
}

std::size_t CountTags(Project& project, std::int64_t station) {
    Statement query(project.Data(), "SELECT count(*) FROM tags WHERE station = ?");
    return query.With(station).Step() ? static_cast<std::size_t>(query.Integer(0)) : 0;
}

std::optional<Tag> FindTag(Project& project, std::int64_t station, std::string_view name) {
    Statement query(project.Data(), std::string(TagsOfStation) + " AND t.name = ?");
    return NextTag(query.With(station, name));
}

std::optional<Tag> FindTagAt(Project& project, std::int64_t station, std::string_view registerClass,
                             std::int32_t number) {
    Statement query(project.Data(), std::string(TagsOfStation) + " AND t.class = ? AND t.register = ?");
    return NextTag(query.With(station, registerClass, std::int64_t{number}));
}

void RenameTag(Project& project, std::int64_t station, std::string_view name, std::string_view newName) {
    Statement(project.Data(), "UPDATE tags SET name = ? WHERE station = ? AND name = ?")
        .With(newName, station, name)
        .Execute();
}

void MoveTag(Project& project, std::int64_t station, std::string_view name, std::int32_t number) {
    Statement(project.Data(), "UPDATE tags SET register = ? WHERE station = ? AND name = ?")
        .With(std::int64_t{number}, station, name)
        .Execute();
}

void RemoveTag(Project& project, std::int64_t station, std::string_view name) {
    Statement(project.Data(), "DELETE FROM tags WHERE station = ? AND name = ?")
        .With(station, name)
        .Execute();
    // One that stayed would force its type on a later module of its name.
    Statement(
        project.Data(),
        "DELETE FROM modules WHERE station = ? AND id NOT IN (SELECT module FROM tags WHERE station = ?)")
        .With(station, station)
        .Execute();
}

void RemoveTags(Project& project, std::int64_t station) {
    Statement(project.Data(), "DELETE FROM tags WHERE station = ?").With(station).Execute();
    Statement(project.Data(), "DELETE FROM modules WHERE station = ?").With(station).Execute();
}

TagAppender::TagAppender(Project& project, std::int64_t station)
    : project_(project), station_(station), place_(LastPlace(project, station)),
      insert_(project.Data(), "INSERT INTO tags (station, place, module, name, class, register, description) "
                              "VALUES (?, ?, ?, ?, ?, ?, ?)") {}

void TagAppender::Append(const Tag& tag) {
    const std::int64_t module = ModuleOf(tag);
    insert_.With(station_, ++place_, module, tag.Name, tag.Class, std::int64_t{tag.Register}, tag.Description)
        .Execute();
}

void TagAppender::Append(const std::vector<Tag>& tags) {
    for (const Tag& tag : tags) {
        Append(tag);
    }
}

std::int64_t TagAppender::ModuleOf(const Tag& tag) {
    if (const auto known = modules_.find(tag.Module); known != modules_.end()) {
        return known->second;
    }
    Database& data = project_.Data();
    Statement(data, "INSERT OR IGNORE INTO modules (station, name, type) VALUES (?, ?, ?)")
        .With(station_, tag.Module, tag.ModuleType)
        .Execute();
    Statement query(data, "SELECT id FROM modules WHERE station = ? AND name = ?");
    const std::int64_t id = query.With(station_, tag.Module).Step() ? query.Integer(0) : 0;
    return modules_.emplace(tag.Module, id).first->second;
}

} // namespace gfc::workshop
