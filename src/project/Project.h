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

// The project file's name without folder and without the extension ".kpj" or ".KPJ"; the path may bear either
// separator. A name without such an extension comes back whole.
[[nodiscard]] std::string ProjectNameOf(std::string_view path);

enum class LoadOutcome { Loaded, NoProject, ListFailed, NoStations };

// Fills ProjectFile, ProjectName and Stations; Paths belongs to whoever starts the program.
LoadOutcome LoadProject(AddOnLibrary& library, Project& project);

// Enters each station's file in its list of files to load, and takes a station without a file out of it.
void RegisterAllStations(AddOnLibrary& library, const config::FileIni& ini, const Project& project,
                         const std::string& currentStation);
void RegisterStation(AddOnLibrary& library, const Project& project, const std::string& station);
// The result of the library; 0 or not, nobody acts on it. The local path is that of currentStation.
int UnregisterStation(AddOnLibrary& library, const Project& project, const std::string& station,
                      const std::string& currentStation);

} // namespace gfc::project
