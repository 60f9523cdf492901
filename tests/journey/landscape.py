# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The landscape that the journey enters by hand, and the project file that must come of it.

Its grades are such that, with the levels and answers below, one species is excluded, scores tie closely enough for
both margin dialogues, one species is omitted and a habitat stays uncovered.
"""

from dataclasses import dataclass


@dataclass(frozen=True)
class Species:
    """Grades are digits, one for each habitat, zone, function or value; a threat is severity, recovery, proportion."""

    name: str
    scientific: str
    habitats: str
    zones: str
    dispersal: str
    connectivity: str
    home_range: str
    occupied: str
    threats: tuple
    status: str
    functions: str
    values: str
    quality: str


SPECIES = (
    Species("Brown Hare", "Lepus europaeus", "3020", "302", "Y", "Y", "0 - 5 km2", "0.1",
            ("000", "000", "134"), "0.8", "0100131", "00100", "54325"),
    Species("Black Grouse", "Lyrurus tetrix", "0023", "003", "Y", "N", "80+ km2", "0.4",
            ("000", "312", "102"), "0.2", "1113300", "10002", "42513"),
    Species("Common Crane", "Grus grus", "1312", "310", "N", "N", "20 - 80 km2", "0.2",
            ("332", "134", "224"), "0.9", "3020001", "11101", "46263"),
    Species("Pine Marten", "Martes martes", "2102", "033", "N", "Y", "5 - 20 km2", "0.8",
            ("231", "323", "000"), "0.4", "1200120", "00110", "44622"),
    Species("Marsh Harrier", "Circus aeruginosus", "3002", "303", "Y", "N", "0 - 5 km2", "0.3",
            ("204", "213", "211"), "0.8", "1201001", "01012", "36656"),
    Species("Fire Salamander", "Salamandra salamandra", "3201", "010", "N", "N", "0 - 5 km2", "0.25",
            ("222", "312", "122"), "0.65", "1020222", "01010", "63316"),
)
HABITATS = (("Heather moor", "120", "2"), ("Alder carr", "45.5", "2"), ("Beech forest", "310", "3"),
            ("Lake shore", "18", "1"))
ZONES = (("Tarn Reserve", "95", "2"), ("Estate lands", "260", "2"), ("Söllen commons", "", "2"))
ACTIVITIES = (("Peat cutting", "3", "1"), ("Forest roads", "2", "0.8"), ("Boat traffic", "1", "0.5"))
BREAKPOINTS = ("0", "5", "20", "80")
FUNCTIONS = ("Predation", "Seed dispersal", "Seed predation", "Pollination", "Mechanical disturbance", "Nest digging",
             "Soil turning")
NEW_FUNCTIONS = {6: "Nest digging", 7: "Soil turning"}  # by row: one renamed, one added

ERROR_MARGIN, THREAT_REPRESENTATION, CONSERVATION_STATUS = "12", "0.4", "0.8"
ANSWERS = ("e", "2", "b")
# Title of each box that the selection shows, and what is answered; None where there is nothing to answer.
BOXES = (
    ("Excluded species", None),
    ("Species with aggregate score within the set margin of error", ANSWERS[0]),
    ("Select the species within the margin or error", ANSWERS[1]),
    ("Species Omitted", None),
    ("Species with aggregate score within the set margin of error", ANSWERS[2]),
    ("Selection Report", None),
)
SUITE = ("Marsh Harrier", "Pine Marten", "Brown Hare", "Fire Salamander")


def projectFile():
    """The bytes that a save must write."""
    def column(rows, index):
        return [row[index] for row in rows]

    def grades(field):
        return [digit for species in SPECIES for digit in getattr(species, field)]

    def of(field):
        return [getattr(species, field) for species in SPECIES]

    def ratings(index):
        return [threat[index] for species in SPECIES for threat in species.threats]

    lines = [("Project Version", ["VERSION2"]), ("Common Name", of("name")), ("Scientific Name", of("scientific"))]
    for keys, rows in ((("Habitat Type", "Habitat Area", "Habitat UseLevel"), HABITATS),
                       (("Jurisdictional Unit", "JU Area", "MZone UseLevel"), ZONES),
                       (("Land Use", "Urgency", "Probability of occurence"), ACTIVITIES)):
        lines += [(key, column(rows, index)) for index, key in enumerate(keys)]
    lines += [("Home-range definition", ["user-defined bins", *BREAKPOINTS]), ("Functions", FUNCTIONS),
              ("HeteroHabitat Population", grades("habitats")), ("HeteroJU Individual", grades("zones")),
              ("Area Dispersal", of("dispersal")), ("Area Connectivity", of("connectivity")),
              ("Home ranges", of("home_range")), ("Landscape Occupied", of("occupied")),
              ("Conservation Status", of("status")), ("VulnerabilitybySpecies Severity", ratings(0)),
              ("VulnerabilitybySpecies Recovery", ratings(1)), ("VulnerabilitybySpecies Proportion", ratings(2))]
    for key, field in (("Function", "functions"), ("Socio-Econ", "values"), ("Data Quality", "quality")):
        digits = of(field)
        lines += [(f"{key}{index + 1}", column(digits, index)) for index in range(len(digits[0]))]
    return "".join(f"{key} = {','.join(values)}\r\n" for key, values in lines).encode()
