#!/usr/bin/env python3
"""check_words.py --reader KIND [PROGRAM] FILE...: a reader finds the words of the sample document in each file, in order.

KIND is soffice, unrtf, antiword, catdoc, wv, poi or cat. Prints the first word that is missing and exits with 1 where there is one.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

# What every reader shows as plain text, whatever it makes of tables, boxes and notes.
WORDS = """Characters plain bold italic Links to Paragraphs The quick brown fox jumps Lists first nested second
Form fields Name Grace Pictures in the line cut turned mirrored Text runs in columns of different widths
Tables Head over two Third Fourth""".split()

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


def missing_word(kind, text):
    place = 0
    for word in WORDS:
        if word in UNSHOWN.get(kind, ()):
            continue
        found = re.compile(rf"\b{re.escape(word)}\b").search(text, place)
        if not found:
            return word
        place = found.end()
    return None


def main():
    kind, rest = sys.argv[2], sys.argv[3:]
    program = None if kind == "cat" else rest.pop(0)
    texts = texts_by_soffice(program, rest) if kind == "soffice" else [text_by(kind, program, file) for file in rest]
    failed = False
    for file, text in zip(rest, texts):
        word = missing_word(kind, text)
        if word:
            print(f"{file}: {kind} does not find \"{word}\" where it should stand")
            failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
