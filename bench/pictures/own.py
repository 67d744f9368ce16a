"""What orvane takes out of a PDF: its JSON, and the files."""
import json
import subprocess


def run(program, pdf, folder, picture_format, password):
    """The JSON of one run, whose files are in `folder`."""
    command = [program, "images", pdf, folder, "--format", picture_format, "--json"]
    if password:
        secret = folder.parent / "password"
        secret.write_text(password + "\n")
        command += ["--password-file", secret]
    output = subprocess.run(command, capture_output=True, text=True, errors="replace").stdout
    return json.loads(output) if output.strip() else {"result": "nothing said", "pictures": [], "notes": []}
