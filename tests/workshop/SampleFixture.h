// The sample project, made in a folder of the test's own.
#pragma once

#include "WorkshopFixture.h"
#include "workshop/demo/SampleProject.h"

namespace gfc::workshop {

class SampleFixture : public WorkshopFixture {
protected:
    SampleFixture() : files_(MakeSample(Folder / "plant", Existing::Refuse)) {}

    [[nodiscard]] Project Plant(Access access = Access::Read) const {
        return Project::Open(files_.Project, access);
    }
    [[nodiscard]] std::vector<Tag> TagsOf(const std::string& station) const {
        Project project = Plant();
        const auto known = FindStation(project, station);
        EXPECT_TRUE(known) << station;
        return known ? ListTags(project, known->Id) : std::vector<Tag>{};
    }

    SampleFiles files_;
};

} // namespace gfc::workshop
