"""The list of documents with tables: each is a function that fills a document, named for what is hard about its table."""
import random

from odf import Document

TRAPS = {}

RUNNING = ("The figures in this section are drawn from administrative records that the regional offices returned at the end of each "
           "quarter. Where an office returned no figure, the value of the previous quarter was carried forward and marked as an estimate. "
           "Totals may differ from the sum of their parts because each figure was rounded on its own.")
CLOSING = ("Coverage of the survey was extended in the second year to include establishments with fewer than ten employees, which had been "
           "left out of the first round on grounds of cost. Readers who compare the two years should bear this in mind.")
COUNTRIES = ("Belgium", "Bulgaria", "Czech Republic", "Denmark", "Germany", "Estonia", "Ireland", "Greece", "Spain", "France", "Italy",
             "Cyprus", "Latvia", "Lithuania", "Luxembourg", "Hungary", "Malta", "Netherlands", "Austria", "Poland", "Portugal", "Romania",
             "Slovenia", "Slovakia", "Finland", "Sweden", "United Kingdom")


def trap(**page):
    """Registers a function of (document, values) under its name; `page` tells how the document is set."""
    def register(function):
        def make(setting):
            document = Document(setting, **page)
            function(document, Values(function.__name__))
            return document
        TRAPS[function.__name__.replace("_", "-")] = make
        return function
    return register


class Values:
    """Numbers that are always the same for one document."""
    def __init__(self, name):
        self.random = random.Random(name)

    def number(self, low, high, form="{:,.0f}"):
        return form.format(self.random.uniform(low, high))

    def row(self, count, low, high, form="{:,.0f}"):
        return "|".join(self.number(low, high, form) for _ in range(count))

    def rows(self, labels, count, low, high, form="{:,.0f}"):
        return [f"{label}|{self.row(count, low, high, form)}" for label in labels]

    def blank_thousands(self, count, low, high):
        return self.row(count, low, high).replace(",", "\u00a0")
