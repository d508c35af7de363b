#pragma once

#include "config/FileIni.h"
#include "project/AddOnLibrary.h"

namespace gfc::project {

// The four facts that everything else is derived from; read once, for the life of the process.
struct Project {
    std::string ProjectFile;
    std::string ProjectName;
    config::ProjectPaths Paths;
    std::vector<Station> Stations;

    [[nodiscard]] std::string ConfigFileOf(std::string_view station) const {
        return config::ConfigFilePath(Paths, ProjectName, station);
    }
};

// The project file's name without folder and without the extension ".kpj" or ".KPJ".
[[nodiscard]] std::string ProjectNameOf(std::string_view path);

enum class LoadOutcome { Loaded, NoProject, ListFailed, NoStations };

// Fills ProjectFile, ProjectName and Stations.
LoadOutcome LoadProject(AddOnLibrary& library, Project& project);

// Enters each station's file in its list of files to load, and takes a station without a file out of it.
void RegisterAllStations(AddOnLibrary& library, const config::FileIni& ini, const Project& project,
                         const std::string& currentStation);
int UnregisterStation(AddOnLibrary& library, const Project& project, const std::string& station,
                      const std::string& currentStation);

// The station between the first and the second backslash of a tree path.
[[nodiscard]] std::string StationOfPath(std::string_view fullPath);

} // namespace gfc::project
