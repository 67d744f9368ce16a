#!/usr/bin/env python3
"""check_words.py --reader KIND [PROGRAM] FILE...: a reader finds the words of the sample document in each file, in order.

KIND is soffice, unrtf, antiword, catdoc, wv, poi, word-extractor or cat. word-extractor tells the parts of a document apart: headers,
notes, comments and boxes are looked for too. Prints the first word that is missing and exits with 1 where there is one.
"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile

# What every reader shows as plain text, whatever it makes of tables, boxes and notes.
WORDS = """Characters plain bold italic Links to Paragraphs The quick brown fox jumps Lists first nested second
Form fields Name Grace Pictures in the line cut turned mirrored Text runs in columns of different widths
Tables Head over two Third Fourth""".split()

# What stands beside the body, for the reader that tells it apart.
PARTS = {
    "headers": "Header of even pages Standard header Header of the first page",
    "footers": "Page 1 of 4 Footer of the columns",
    "footnotes": "The note at the foot. With a star.",
    "endnotes": "The note at the end.",
    "comments": "Is this so?",
    "boxes": "A box of text in box A note from the box. Text that climbs up the margin",
}

# What a reader is known to pass over: the mark of a picture or a comment takes what stands before it in its paragraph away.
UNSHOWN = {"catdoc": {"plain", "bold", "italic", "cut", "turned", "mirrored"}}


def texts_by_soffice(program, files):
    """The texts of all files, by one start of the program."""
    with tempfile.TemporaryDirectory() as folder:
        profile = pathlib.Path(folder, "profile").as_uri()
        # Results are named without the files' endings, so files get names of their own.
        named = []
        for index, file in enumerate(files):
            copy = pathlib.Path(folder, f"file{index}{pathlib.Path(file).suffix}")
            copy.write_bytes(pathlib.Path(file).read_bytes())
            named.append(str(copy))
        subprocess.run([program, f"-env:UserInstallation={profile}", "--headless", "--convert-to", "txt:Text (encoded):UTF8",
                        "--outdir", folder, *named], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return [pathlib.Path(folder, f"file{index}.txt").read_text(encoding="utf-8") for index in range(len(files))]


def text_by(kind, program, file):
    if kind == "cat":
        return pathlib.Path(file).read_text(encoding="utf-8")
    options = {
        "unrtf": ["--text"],
        "antiword": ["-m", "UTF-8.txt"],
        "catdoc": ["-d", "utf-8"],
        "wv": ["-x", "/usr/share/wv/wvText.xml"],
        "poi": ["org.apache.poi.hwpf.extractor.WordExtractor"],
    }[kind]
    # Some leave files where they are started.
    with tempfile.TemporaryDirectory() as folder:
        command = [program, *options, str(pathlib.Path(file).resolve())]
        output = subprocess.run(command, check=True, capture_output=True, cwd=folder).stdout
    return output.decode("utf-8", errors="replace")


def parts_by_extractor(program, file):
    """The parts by their names."""
    script = pathlib.Path(__file__).with_name("extract_parts.js")
    run = subprocess.run([program, str(script), file], capture_output=True)
    if run.returncode != 0:
        sys.exit(f"word-extractor cannot read {file}, or packaging/install-readers.sh could not install it:\n{run.stderr.decode()}")
    return json.loads(run.stdout)


def missing_in_parts(parts):
    for name, words in PARTS.items():
        word = missing_word("word-extractor", parts[name], words.split())
        if word:
            return f"{word} ({name})"
    return missing_word("word-extractor", parts["body"])


def missing_word(kind, text, words=WORDS):
    place = 0
    for word in words:
        if word in UNSHOWN.get(kind, ()):
            continue
        found = re.compile(rf"(?<!\w){re.escape(word)}(?!\w)").search(text, place)
        if not found:
            return word
        place = found.end()
    return None


def main():
    kind, rest = sys.argv[2], sys.argv[3:]
    program = None if kind == "cat" else rest.pop(0)
    if kind == "word-extractor":
        missing = [missing_in_parts(parts_by_extractor(program, file)) for file in rest]
    else:
        texts = texts_by_soffice(program, rest) if kind == "soffice" else [text_by(kind, program, file) for file in rest]
        missing = [missing_word(kind, text) for text in texts]
    failed = False
    for file, word in zip(rest, missing):
        if word:
            print(f"{file}: {kind} does not find \"{word}\" where it should stand")
            failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
