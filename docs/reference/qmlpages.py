"""The reference pages of the QML modules. Names and types come from the description of the module and from the QML
files themselves, texts from the headers and from the comments of the QML files."""
import pathlib
import re

import headers

COMPONENT = re.compile(r"\n    Component \{\n(.*?)\n    \}", re.S)
MEMBER = re.compile(r"\n        (Property|Signal|Method|Enum) (?:\{ (.*?) \}|\{\n(.*?)\n        \})", re.S)
PARAMETER = re.compile(r"Parameter \{ (?:name: \"(\w+)\"; )?type: \"([^\"]+)\"[^}]*\}")
TYPES = {"QString": "string", "QVariant": "var", "QObject": "QtObject", "QStringList": "list of strings",
         "QVariantMap": "object", "QVariantList": "list", "QDateTime": "date", "qlonglong": "real"}
# Public to the module's own files.
NOT_FOR_PAGES = {"slotChoicesChanged", "slotUnitsChanged", "slotIsReadyChanged", "slotQualityChanged"}


class Undescribed(Exception):
    pass


def escaped(text):
    return re.sub(r"([|<>])", r"\\\1", " ".join(text.split()))


def for_pages(text):
    """A text of a header in the notation of pages."""
    return re.sub(r"\buiutils::", "", text).replace("::", ".")


def field(text, name):
    found = re.search(rf"\b{name}: (?:\"([^\"]*)\"|(\w+))", text)
    return (found.group(1) or found.group(2)) if found else ""


def qml_type(name):
    return TYPES.get(name, name)


def signature(body, name):
    parameters = [f"{qml_type(kind)} {title}".strip() for title, kind in PARAMETER.findall(body)]
    return f"{name}({', '.join(parameters)})"


class Component:
    def __init__(self, text):
        head = re.split(r"\n        (?:Property|Signal|Method|Enum) ", text)[0]
        self.cpp = field(text, "name")
        self.base = field(head, "prototype")
        self.exported = re.findall(r'"UiUtils/(\w+) 1\.0"', text)
        self.creatable = "isCreatable: false" not in text
        self.singleton = "isSingleton: true" in text
        self.members = [(kind, short or long) for kind, short, long in MEMBER.findall("\n" + text)]

    def lines(self, texts):
        """One line of the table for each member that pages can use."""
        for kind, body in self.members:
            name = field(body, "name")
            if kind == "Enum":
                yield from self.enum_lines(name, body, texts)
            elif name not in NOT_FOR_PAGES:
                yield self.line(kind, name, body, texts)

    def line(self, kind, name, body, texts):
        shown = f"`{name}`" if kind == "Property" else f"`{signature(body, name)}`"
        note = "signal" if kind == "Signal" else qml_type(field(PARAMETER.sub("", body), "type").rstrip("*"))
        if kind == "Property" and "isReadonly: true" in body:
            note += ", read only"
        return shown, note, self.text(kind, name, texts)

    def enum_lines(self, enum, body, texts):
        owner = self.exported[0] if self.exported else self.cpp
        for key, value in re.findall(r'"(\w+)": (-?\d+)', body):
            yield f"`{owner}.{key}`", f"{enum} {value}", " ".join(texts.get(key, []))

    def text(self, kind, name, texts):
        if name not in texts:
            raise Undescribed(f"{self.cpp}: {name} has no text")
        # A property's accessor may have its name, and follows it.
        return for_pages(texts[name][0] if kind == "Property" else " ".join(dict.fromkeys(texts[name])))


def table(lines):
    rows = ["| | | |", "|---|---|---|"]
    rows += [f"| {name} | {escaped(note)} | {escaped(text)} |" for name, note, text in lines]
    return "\n".join(rows)


def inherited_texts(component, components, texts_of):
    texts = {}
    while component:
        for name, found in texts_of(component.cpp).items():
            texts.setdefault(name, found)
        component = components.get(component.base)
    return texts


def made_by(component):
    if component.singleton:
        return "There is one object of it, which the name stands for."
    return "Pages create it." if component.creatable else "Pages do not create it."


def base_text(name):
    return f" It has everything that \\ref qml_{name} \"{name}\" has."


def type_page(component, components, texts_of):
    texts = inherited_texts(component, components, texts_of)
    name = component.exported[0]
    base = components.get(component.base)
    of_base = base_text(base.exported[0]) if base and base.exported else ""
    # A class without a meta-object of its own is registered under that of its base, which Qt describes.
    own = component.cpp.split("::")[-1]
    about = for_pages((texts_of(own).get(own) or texts_of(name).get(name) or [""])[0])
    if not about:
        raise Undescribed(f"{name} has no text")
    members = list(component.lines(texts)) if texts_of(component.cpp) else []
    parts = [f"# {name} {{#qml_{name}}}", "", f"`import UiUtils 1.0`. {made_by(component)}{of_base}", "", about, ""]
    return "\n".join(parts + ([table(members)] if members else [])) + "\n"


def module_pages(qmltypes, texts_of):
    """Pairs of page name and text for all types of UiUtils."""
    components = {}
    for text in COMPONENT.findall(qmltypes.read_text(encoding="utf-8")):
        component = Component("\n" + text)
        components[component.cpp] = component
    pages = [(component.exported[0], type_page(component, components, texts_of))
             for component in components.values() if component.exported]
    return sorted(pages)


# --- The components of QML -----------------------------------------------------------------------

QML_MEMBER = re.compile(
    r"    (?:default )?(readonly )?(?:property (\w+) (\w+)|signal (\w+)(\([^)]*\))?|function (\w+)(\([^)]*\)))")
# Templates of Qt are imported as T.
QML_ROOT = re.compile(r"^(?:T\.)?([A-Z]\w*) \{", re.M)


def qml_members(lines):
    """The members that a comment of three slashes makes part of the module's interface."""
    text = []
    for line in lines:
        if line.startswith("    /// "):
            text.append(line[8:])
            continue
        member = QML_MEMBER.match(line)
        if text and member:
            constant, kind, name, signal, parameters, function, arguments = member.groups()
            shown = name or f"{signal}{parameters or '()'}" if not function else function + arguments
            note = f"{kind}{', read only' if constant else ''}" if name else "signal" if signal else ""
            yield f"`{shown}`", note, " ".join(text)
        text = []


def control_page(name, folder, public):
    lines = (folder / f"{name}.qml").read_text(encoding="utf-8").split("\n")
    root = next(at for at, line in enumerate(lines) if QML_ROOT.match(line))
    about = [line[4:] for line in lines[:root] if line.startswith("/// ")]
    if not about:
        raise Undescribed(f"{name}.qml has no text")
    base = QML_ROOT.match(lines[root]).group(1)
    members = list(qml_members(lines[root:]))
    of_base = base_text(base) if (folder / f"{base}.qml").exists() else f" It is a {base} of Qt."
    role = "`import UiUtils.Controls 1.0`." if name in public else "A base of the module's types. Pages do not create it."
    parts = [f"# {name} {{#qml_{name}}}", "", role + of_base, "", " ".join(about), ""]
    return "\n".join(parts + ([table(members)] if members else [])) + "\n"


def base_of(name, folder):
    return QML_ROOT.search((folder / f"{name}.qml").read_text(encoding="utf-8")).group(1)


def controls_pages(folder):
    """Pairs of page name and text for the types of UiUtils.Controls and those that they derive from."""
    public = re.findall(r"^(?:singleton )?(\w+) 1\.0 ", (folder / "qmldir").read_text(encoding="utf-8"), re.M)
    names = set(public)
    for name in public:
        while (folder / f"{name}.qml").exists():
            names.add(name)
            name = base_of(name, folder)
    return [(name, control_page(name, folder, public)) for name in sorted(names)]


def list_page(identifier, title, about, pages):
    links = "\n".join(f"- \\subpage qml_{name}" for name, _ in pages)
    return f"# {title} {{#{identifier}}}\n\n{about}\n\n{links}\n"


def all_pages(qmltypes, controls, texts_of):
    types, entries = module_pages(pathlib.Path(qmltypes), texts_of), controls_pages(pathlib.Path(controls))
    types_about = "What pages know after `import UiUtils 1.0`. docs/qml-api.md says how it is used."
    entries_about = "What pages know after `import UiUtils.Controls 1.0`. docs/forms.md says how it is used."
    return types + entries + [
        ("uiutils", list_page("qml_uiutils", "QML: UiUtils", types_about, types)),
        ("controls", list_page("qml_controls", "QML: UiUtils.Controls", entries_about, entries))]
