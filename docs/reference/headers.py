"""What the reference pages take from the public headers: the texts of members, and the headers with a text for members
that another one describes already."""
import re

PROPERTY = re.compile(r"Q_PROPERTY\(\s*[\w:<>, ]+?[\s*&]+(\w+)\s+((?:READ|MEMBER|CONSTANT)[^)]*)\)")
ACCESS = re.compile(r"\b(READ|WRITE|NOTIFY)\s+(\w+)")
TEXTS = {
    "READ": "Returns {0}.",
    "WRITE": "Sets {0}.",
    "NOTIFY": "Emitted when {0} has changed.",
}
# What our classes override of Qt's, by the class that describes it.
OF_QT = {
    "rowCount": "QAbstractItemModel", "data": "QAbstractItemModel", "roleNames": "QAbstractItemModel",
    "classBegin": "QQmlParserStatus", "componentComplete": "QQmlParserStatus",
    "updateValue": "QQmlPropertyMap",
}
PARENT = re.compile(r"explicit \w+\(QObject\* parent = nullptr\);")
FUNCTION = re.compile(r"[\w:<>,*& ]*?\b(\w+)\(.*")
NO_MEMBER = ("//", "friend ", "~", "Q_PROPERTY", "return ")
DECLARED = re.compile(
    r"Q_PROPERTY\(\s*[\w:<>, ]+?[\s*&]+(\w+)\s+(?:READ|MEMBER|CONSTANT)"
    r"|(?:class|struct|enum) (?:[A-Z_]+ )?(\w+)|(\w+)\(|(\w+)(?: = [^,]*)?[,;]")


def accessor_texts(header):
    """The text of each accessor and notifier by its name; a notifier may serve several properties."""
    served = {}
    for name, description in PROPERTY.findall(header):
        for kind, function in ACCESS.findall(description):
            served.setdefault((function, kind), []).append("`" + name + "`")
    return {function: TEXTS[kind].format(" or ".join(names)) for (function, kind), names in served.items()}


def pair_text(function, functions):
    """What a setter's getter says of itself, or the other way round."""
    bare = re.sub("^(set|is|get)", "", function)
    bare = bare[:1].upper() + bare[1:]
    if function.startswith("set"):
        getters = {"is" + bare, "get" + bare, bare[:1].lower() + bare[1:]} & functions
        return f"Sets what {getters.pop()}() returns." if getters else ""
    return f"Returns what set{bare}() has set." if "set" + bare in functions else ""


def text_for(line, texts, functions):
    line = re.sub(r"\[\[\w+\]\] ", "", line.strip())
    if PARENT.match(line):
        return "An object that `parent` deletes; without a parent, its creator does."
    function = FUNCTION.match(line)
    if not function or line.startswith(NO_MEMBER):
        return ""
    name = function.group(1)
    if name in OF_QT and " override" in line:
        return f"Implements {OF_QT[name]}::{name}()."
    # What is overridden has its text from the base.
    return texts.get(name) or ("" if " override" in line else pair_text(name, functions))


def with_texts(header):
    """The lines of the header; their numbers stay as they are."""
    texts = accessor_texts(header)
    described = set(re.findall(r"///[^\n]*\n\s*[^/\n(]*?\b(\w+)\(", header))
    before = ""
    for line in header.split("\n"):
        text = "" if before.startswith("///") or before.endswith(",") else text_for(line, texts, described)
        yield f"/** {text} */ {line}" if text else line
        before = line.strip()


CLASS = re.compile(r"(?:class|struct) (?:\[\[\w+\]\] )?(?:[A-Z]+_EXPORT )?(\w+)(?: final)?(?: :[^;]*)?$")


def texts_by_class(header):
    """The texts of each class and its members, by their names; of members that share a name all texts."""
    found = {}
    members = {}
    text = []
    for line in with_texts(header):
        outer = CLASS.match(line)
        if outer:
            members = found.setdefault(outer.group(1), {})
        line = line.strip()
        inline = re.match(r"/\*\* (.*?) \*/ (.*)", line)
        if inline:
            text, line = [inline.group(1)], inline.group(2)
        if line.startswith("///"):
            text.append(line[3:].strip())
            continue
        name = DECLARED.search(line)
        if text and name:
            members.setdefault(next(filter(None, name.groups())), []).append("\n".join(text))
        text = []
    return found
