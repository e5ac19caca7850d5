"""Checks the manifests for package managers: what each of them requires, and that sizes, sums and addresses are those of the
packages. A part of check-packages.py."""

import hashlib
import json
import re
import zipfile

import manifests

SINGLETONS = {"PackageIdentifier", "PackageVersion", "ManifestType", "ManifestVersion"}
REQUIRED = {  # of winget's files, by their type
    "version": SINGLETONS | {"DefaultLocale"},
    "installer": SINGLETONS | {"Installers"},
    "defaultLocale": SINGLETONS | {"PackageLocale", "Publisher", "PackageName", "License", "ShortDescription"},
    "locale": SINGLETONS | {"PackageLocale"}}
OF_INSTALLER = {"Architecture", "InstallerUrl", "InstallerSha256"}  # and the type, which both have in common
OF_SCOOP = {"version", "description", "homepage", "license"}
MOST = {"PackageName": 256, "Publisher": 256, "ShortDescription": 256}  # characters
URL = re.compile(r"https?://[^\"\s]+")


def read(text):
    """Fields at the left, and those of each entry of the list."""
    fields = dict(re.findall(r'^(\w+): "(.*)"$', text, re.M))
    entries = [dict(re.findall(r'^[- ] (\w+): "(.*)"$', entry, re.M)) for entry in re.split(r"^(?=- )", text, flags=re.M)[1:]]
    return fields, entries


def whole(text):
    """Whether each line is one that read() understands."""
    known = re.compile(r'#.*|\w+: "[^"\\]*"|\w+:|[- ] \w+: "[^"\\]*"')
    return all(known.fullmatch(line) for line in text.splitlines())


def sum_of(file):
    return hashlib.sha256(file.read_bytes()).hexdigest()


def winget(checks, packages, folder, version):
    seen = {}
    for file in sorted(folder.iterdir()):
        text = file.read_text(encoding="utf-8")
        fields, entries = read(text)
        kind = fields.get("ManifestType", "")
        seen[kind] = entries
        checks.that(whole(text), f"winget: {file.name} is a list of plain fields")
        missing = REQUIRED.get(kind, {"ManifestType"}) - fields.keys() - ({"Installers"} if entries else set())
        checks.equal(missing, set(), f"winget: {file.name} has all that is required")
        checks.equal((fields.get("PackageIdentifier"), fields.get("PackageVersion")), (manifests.IDENTIFIER, version),
                     f"winget: {file.name} is of this package and version")
        checks.that(all(0 < len(fields.get(key, "x")) <= most for key, most in MOST.items()),
                    f"winget: {file.name} has no text that is too long")
        expected = manifests.IDENTIFIER + {"version": "", "installer": ".installer"}.get(
            kind, f".locale.{fields.get('PackageLocale')}") + ".yaml"
        checks.equal(file.name, expected, f"winget: {file.name} bears the name that its content asks for")
        if kind == "installer":
            checks.equal(fields.get("InstallerType"), "nullsoft", "winget: the installers are of the kind that they are")
    checks.equal(set(seen), set(REQUIRED), "winget: a file of each kind")
    checks.equal([entry.get("Architecture") for entry in seen.get("installer", [])], ["x86", "x64"],
                 "winget: an installer for each bitness")
    for entry in seen.get("installer", []):
        name = entry.get("InstallerUrl", "").rpartition("/")[2]
        checks.equal(OF_INSTALLER - entry.keys(), set(), f"winget: {name} has all that is required")
        file = packages / name
        checks.that(file.is_file() and entry["InstallerSha256"] == sum_of(file).upper(), f"winget: {name}: the sum is its own")


def scoop(checks, packages, folder, version):
    made = json.loads((folder / "kestrel.json").read_text(encoding="utf-8"))
    checks.equal(OF_SCOOP - made.keys(), set(), "Scoop: the manifest has all that is required")
    checks.equal((made["version"], made["persist"]), (version, "kestrel.ini"), "Scoop: its version; the settings are kept")
    checks.equal(sorted(made["architecture"]), ["32bit", "64bit"], "Scoop: a zip for each bitness")
    for entry in made["architecture"].values():
        file = packages / entry["url"].rpartition("/")[2]
        if not checks.that(file.is_file() and entry["hash"] == sum_of(file), f"Scoop: {file.name}: the sum is its own"):
            continue
        with zipfile.ZipFile(file) as packed:
            used = [path.replace("\\", "/") for path in re.findall(r"\$dir\\([^\"]+)\"", made["pre_install"])][:1]
            needed = {f"{made['extract_dir']}/{path}" for path in [*used, *(link[0] for link in made["shortcuts"])]}
            checks.equal(needed - set(packed.namelist()), set(), f"Scoop: {file.name} holds what the manifest names")


def check(checks, packages, target, version):
    winget(checks, packages, target / "winget", version)
    scoop(checks, packages, target / "scoop", version)
    texts = {file.name: file.read_text(encoding="utf-8") for file in sorted(target.rglob("*")) if file.is_file()}
    foreign = [url for text in texts.values() for url in URL.findall(text)
               if not url.startswith(f"{manifests.ADDRESS}/{version}/") and url != manifests.HOMEPAGE]
    checks.equal(foreign, [], "the manifests name no other place than the maintainer's")
    named = set(re.findall(r"(\S+): (\d+) bytes", "\n".join(texts.values()).replace('"', " ")))
    sizes = {(name, str((packages / name).stat().st_size)) for name, _ in named if (packages / name).is_file()}
    checks.equal((named, len(named)), (sizes, 4), "the manifests tell the size of each package")
