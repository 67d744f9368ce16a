"""Which objects of a PDF are there for what, as qpdf shows them."""
import json
import subprocess


class Objects:
    def __init__(self, pdf, password):
        command = ["qpdf", "--json=2", "--json-key=qpdf", *(["--password=" + password] if password else []), str(pdf)]
        output = subprocess.run(command, capture_output=True, check=False).stdout
        self.objects = {}
        try:
            self.objects = json.loads(output)["qpdf"][1]
        except (ValueError, KeyError, IndexError):
            pass  # a file that qpdf cannot read explains nothing

    def value(self, item):
        """What a reference stands for; streams as their dictionaries."""
        for _ in range(8):
            if not (isinstance(item, str) and item.endswith(" R")):
                break
            held = self.objects.get("obj:" + item, {})
            item = held.get("value", held.get("stream", {}).get("dict"))
        return item

    def picture(self, number):
        return self.value(f"{number} 0 R") or {}

    def matte(self, number):
        """The ground colour that the soft mask of a picture tells; grey or RGB, 0 to 255."""
        mask = self.value(self.picture(number).get("/SMask")) or {}
        return levels_of(self.value(mask.get("/Matte")))

    def opacity_in_data(self, number):
        """1: the data of JPEG 2000 holds opacity; 2: and colours that are mixed with a ground; 0: neither."""
        return self.picture(number).get("/SMaskInData", 0)

    def matte_in_data(self, number):
        return levels_of(self.value(self.picture(number).get("/Matte"))) or [0, 0, 0]

    def has_color_key(self, number):
        return isinstance(self.value(self.picture(number).get("/Mask")), list)

    def of_soft_masks(self):
        """The numbers of all objects that the soft masks of graphics states are made of."""
        return self._below(lambda item: item.get("/G") if item.get("/S") in ("/Luminosity", "/Alpha") else None)

    def of_patterns(self):
        return self._below(lambda item: item.get("/Resources") if item.get("/PatternType") == 1 else None)

    def _below(self, start):
        found, waiting = set(), []
        for name in self.objects:
            waiting += [start(item) for item in dictionaries(self.value(name.removeprefix("obj:")))]
        while waiting:
            item = waiting.pop()
            if isinstance(item, str) and item.endswith(" R"):
                if item in found:
                    continue
                found.add(item)
            for inner in dictionaries(self.value(item)):
                waiting += [inner[key] for key in inner if key != "/Parent"]
        return {int(item.split()[0]) for item in found}


def levels_of(matte):
    """A colour of a PDF, grey or RGB, in levels of 255."""
    if not isinstance(matte, list) or len(matte) not in (1, 3):
        return None
    levels = [255 * float(level) for level in matte]
    return levels * 3 if len(levels) == 1 else levels


def dictionaries(item):
    """A dictionary and all that stand in it directly."""
    if isinstance(item, dict):
        yield item
        for inner in item.values():
            yield from dictionaries(inner)
    elif isinstance(item, list):
        for inner in item:
            yield from dictionaries(inner)
