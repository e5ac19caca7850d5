"""The manifests by which package managers find Kestrel: for winget three files, for Scoop one.

Both name the packages by their addresses and sums; a maintainer sets the address below and nothing else.
"""

import hashlib
import json
from pathlib import Path

# A placeholder: whoever publishes puts in an address of their own, without a slash at its end. The packages of a version
# are in download/VERSION below it.
HOMEPAGE = "https://kestrel.example"
ADDRESS = f"{HOMEPAGE}/download"

IDENTIFIER = "KestrelTeam.Kestrel"
SCHEMA = "1.6.0"  # of winget's manifests
PUBLISHER = "The Kestrel team"
LICENCE = "MIT"
TEXTS = {"en-US": "Button bar for the EAGLE PCB design program", "de-DE": "Knopfleiste für das Leiterplattenprogramm EAGLE"}
WINGET = {"win32": "x86", "win64": "x64"}
SCOOP = {"win32": "32bit", "win64": "64bit"}


def address(version, name):
    return f"{ADDRESS}/{version}/{name}"


def sum_of(file):
    return hashlib.sha256(file.read_bytes()).hexdigest()


def yaml(fields, comment=""):
    """Fields of plain texts, in quotes, and one list of such fields."""
    lines = [f"# {comment}"] if comment else []
    for key, value in fields.items():
        if isinstance(value, str):
            lines.append(f'{key}: "{value}"')
            continue
        lines.append(f"{key}:")
        for entry in value:
            lines += [f'{"- " if number == 0 else "  "}{name}: "{text}"' for number, (name, text) in enumerate(entry.items())]
    return "\n".join(lines) + "\n"


def winget(packages, version):
    """The three files, by their names."""
    common = {"PackageIdentifier": IDENTIFIER, "PackageVersion": version}
    files = {bits: packages / f"kestrel-{version}-{bits}-setup.exe" for bits in WINGET}
    sizes = ", ".join(f"{file.name}: {file.stat().st_size} bytes" for file in files.values())
    installers = [{"Architecture": WINGET[bits], "InstallerUrl": address(version, file.name),
                   "InstallerSha256": sum_of(file).upper()} for bits, file in files.items()]
    english, german = TEXTS
    text = {"Publisher": PUBLISHER, "PublisherUrl": HOMEPAGE, "PackageName": "Kestrel", "PackageUrl": HOMEPAGE,
            "License": LICENCE}
    made = {
        "": yaml({**common, "DefaultLocale": english, "ManifestType": "version", "ManifestVersion": SCHEMA}),
        ".installer": yaml({**common, "MinimumOSVersion": "6.1.0.0", "InstallerType": "nullsoft", "Scope": "user",
                            "UpgradeBehavior": "install", "Installers": installers, "ManifestType": "installer",
                            "ManifestVersion": SCHEMA}, sizes),
        f".locale.{english}": yaml({**common, "PackageLocale": english, **text, "ShortDescription": TEXTS[english],
                                    "ManifestType": "defaultLocale", "ManifestVersion": SCHEMA}),
        f".locale.{german}": yaml({**common, "PackageLocale": german, **text, "ShortDescription": TEXTS[german],
                                   "ManifestType": "locale", "ManifestVersion": SCHEMA})}
    return {f"{IDENTIFIER}{end}.yaml": content for end, content in made.items()}


def scoop(packages, version):
    """Settings are kept over updates: they are a link to a file beside the versions. That has to be there before the first
    start, or a folder is made in its place."""
    files = {bits: packages / f"kestrel-{version}-{bits}.zip" for bits in SCOOP}
    return json.dumps({
        "##": [f"{file.name}: {file.stat().st_size} bytes" for file in files.values()],
        "version": version, "description": TEXTS["en-US"], "homepage": HOMEPAGE, "license": LICENCE,
        "architecture": {SCOOP[bits]: {"url": address(version, file.name), "hash": sum_of(file)}
                         for bits, file in files.items()},
        "extract_dir": f"Kestrel-{version}",
        "pre_install": "if (!(Test-Path \"$persist_dir\\kestrel.ini\")) "
                       "{ Copy-Item \"$dir\\samples\\English\\kestrel.ini\" \"$dir\\kestrel.ini\" }",
        "shortcuts": [["kestrel.exe", "Kestrel"]],
        "persist": "kestrel.ini"}, indent=4) + "\n"


def make(packages, target, version):
    """Leaves the manifests of the packages in folders of the two package managers."""
    for folder, files in (("winget", winget(packages, version)), ("scoop", {"kestrel.json": scoop(packages, version)})):
        place = Path(target) / folder
        place.mkdir(parents=True, exist_ok=True)
        for old in place.iterdir():
            old.unlink()
        for name, content in files.items():
            (place / name).write_bytes(content.encode("utf-8"))
