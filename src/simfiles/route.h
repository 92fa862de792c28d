// What the files of a route say: the route's name, its services and its activities.
#pragma once

#include <string>
#include <vector>

namespace zandor {

// What runs on a route: names a consist.
struct ServiceRoute {
    std::string Fichier; // full path
    std::string Nom;
    std::string Rame;              // the consist's short name; empty when the file gives none
    int Ligne = 0;                 // the last line read, from 1
    bool MaterielManquant = false; // of its consist; found out when the service is looked at
    bool RameManquante = false;    // as above: there is no such consist
    bool operator==(const ServiceRoute&) const = default;
};

// One vehicle that an activity places.
struct ActiviteMateriel {
    std::string Fichier;   // stock file without extension; empty when the file gives one word only
    std::string Dossier;   // under TRAINSET; the word, when there is one only
    std::string Texte;     // the source line, by which the reference is found again
    int Ligne = 0;         // from 1
    bool Motrice = false;  // an engine
    bool Manquant = false; // its stock file isn't there
    bool operator==(const ActiviteMateriel&) const = default;
};

struct ActiviteRoute {
    std::string Nom;
    std::string Fichier; // full path; empty on a record that only holds vehicles from before the first name
    std::vector<ActiviteMateriel> Vehicules; // in file order
    bool operator==(const ActiviteRoute&) const = default;
};

struct RouteMSTS {
    std::string Nom;
    std::string Dossier; // under ROUTES, ended by "\"; empty when that folder holds no route
    std::vector<ServiceRoute> Services;
    std::vector<ActiviteRoute> Activites;
    bool operator==(const RouteMSTS&) const = default;
};

// The stock file of a vehicle, with its extension.
inline std::string stockFileOf(const ActiviteMateriel& vehicle) {
    return vehicle.Fichier + (vehicle.Motrice ? ".eng" : ".wag");
}

} // namespace zandor
