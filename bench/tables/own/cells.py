"""Tables whose cells are hard: signs apart from numbers, fillers, marks, texts of several lines, empty cells."""
from odf import ABOVE, BELOW, Look
from traps import CLOSING, COUNTRIES, RUNNING, trap

ONE = "{:.1f}"
BOOKED = ((0, ABOVE), (0, BELOW), (-1, BELOW))
REMARKS = (("Transport", "Payments were slower than planned because tenders for two of the five sections had to be repeated."),
           ("Energy", "None"),
           ("Research", "The increase reflects the second call for proposals, which closed in September, and the transfer of the joint "
                        "undertaking."),
           ("Health", "Includes vaccines."), ("Total", ""))
SAMPLES = (("Upper weir", 3, ""), ("Mill bridge", 3, "a"), ("Ford", 4, ""), ("Confluence", 4, ""), ("Railway bridge", 5, "a, b"),
           ("Lower weir", 6, ""), ("Harbour", 6, ""))


@trap(size=9)
def currency_signs_apart_in_the_first_and_last_row(d, v):
    d.add("Condensed balance sheets (in millions)", bold=True)
    d.table([6, 2.5, 0.5, 2.5], [
        "|September 30, 2010||September 30, 2009",
        f"Fund balance with Treasury|$\t{v.number(10, 900, '{:,.1f}')}||$\t{v.number(10, 900, '{:,.1f}')}",
        *(f"{name}|{v.number(10, 900, '{:,.1f}')}||{v.number(10, 900, '{:,.1f}')}" for name in (
            "Accounts receivable", "Property, plant and equipment, net", "Other")),
        f"Total assets|$\t{v.number(1000, 9000, '{:,.1f}')}||$\t{v.number(1000, 9000, '{:,.1f}')}"],
        Look(head_align="lclc", rules=((-1, ABOVE), (-1, BELOW)), cell_rules=((0, 1), (0, 3)), padding=0.02))
    d.add(RUNNING)


@trap(font="Liberation Sans", size=8)
def negatives_in_brackets_and_percents(d, v):
    d.add(RUNNING)
    d.table([5, 2, 2, 2, 2], [
        "|FY 2009|FY 2010|Change|Change (%)",
        *(f"{name}|{v.row(2, 100, 9000)}|({v.number(1, 900)})|({v.number(1, 40, ONE)}%)"
          for name in ("Salaries", "Travel", "Rent", "Contracts", "Equipment")),
        f"Total|{v.row(2, 10000, 90000)}|{v.number(1, 900)}|{v.number(1, 40, ONE)}%"],
        Look(rules=(*BOOKED, (-1, ABOVE))))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def fillers_for_missing_values(d, v):
    d.add(RUNNING)
    rows = []
    for country in COUNTRIES[:12]:
        values = [v.random.choice((v.number(1, 99, ONE), v.number(1, 99, ONE), ":", "–", "n/a", "..", "(NA)", "0.0 s"))
            for _ in range(6)]
        rows.append("|".join((country, *values)))
    d.table([3.5, 2, 2, 2, 2, 2, 2], ["Country|Men|Women|Total|Men|Women|Total", *rows], Look(rules=BOOKED))
    d.add(": not available; – not applicable; s Eurostat estimate", size=7)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def fillers_without_rules(d, v):
    d.add(RUNNING)
    rows = []
    for country in COUNTRIES[:12]:
        values = [v.random.choice((v.number(1, 999, ONE), v.number(1, 99, ONE), ":", "–", "n/a", "..")) for _ in range(6)]
        rows.append("|".join((country, *values)))
    d.table([3.5, 2, 2, 2, 2, 2, 2], ["Country|2004|2005|2006|2007|2008|2009", *rows], Look(bold=(0,)))
    d.add(CLOSING)


@trap(size=10)
def blanks_as_thousands(d, v):
    d.add(RUNNING)
    d.table([4] + [2.1] * 6, [
        "Région|2004|2005|2006|2007|2008|2009",
        *(f"{name}|{v.blank_thousands(6, 1000, 9000000)}"
          for name in ("Alsace", "Bretagne", "Corse", "Limousin", "Lorraine", "Picardie", "Ensemble"))],
        Look(rules=BOOKED))
    d.add(CLOSING)


@trap(size=10)
def blanks_as_thousands_without_rules(d, v):
    d.add(RUNNING)
    d.table([4] + [1.9] * 6, [
        "Région|2004|2005|2006|2007|2008|2009",
        *(f"{name}|{v.blank_thousands(6, 100, 9000000)}"
          for name in ("Alsace", "Bretagne", "Corse", "Limousin", "Lorraine", "Picardie", "Ensemble"))],
        Look(bold=(0,), padding=0.03))
    d.add(CLOSING)


@trap(font="Carlito", size=9)
def remarks_beside_numbers(d, v):
    d.add(RUNNING)
    d.table([3.5, 2, 2, 9], [
        "Programme|2009|2010|Remarks",
        *(f"{name}|{v.row(2, 100, 900, ONE)}|{remark}" for name, remark in REMARKS)],
        Look(align="lrrl", rules=BOOKED, padding_above=0.08, padding=0.15))
    d.add(CLOSING)


@trap(font="Carlito", size=9)
def remarks_beside_numbers_without_rules(d, v):
    d.add(RUNNING)
    d.table([3.5, 2, 2, 9], [
        "Programme|2009|2010|Remarks",
        *(f"{name}|{v.row(2, 100, 900, ONE)}|{remark}" for name, remark in REMARKS)],
        Look(align="lrrl", bold=(0,), padding_above=0.1, padding=0.15))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def last_column_mostly_empty(d, v):
    d.add(RUNNING)
    d.table([5, 2.2, 2.2, 2.2, 2.5], [
        "Station|Depth (m)|Flow (l/s)|Sampled|Note",
        *(f"{name}|{v.row(2, 2, 90, ONE)}|0{month}/2009|{note}" for name, month, note in SAMPLES)],
        Look(align="lrrrl", rules=BOOKED, head_align="lrrrl"))
    d.add("a: turbid; b: sampled twice", size=7)
    d.add(CLOSING)


def wrapped_rows(d, look):
    d.add(RUNNING)
    d.table([3.2, 5, 4, 4.2], [
        "Authority|Task|Legal basis|Remarks",
        "Ministry of Agriculture and Rural Development|Certification of bodies|Act 12/2004|",
        "Paying agency|Checks before payment, accounting, and reporting to the Commission within the time limits|"
        "Regulation (EC) No 1290/2005, Article 6|Accredited in 2006",
        "Audit office|Opinion on the annual accounts|Regulation (EC) No 885/2006|Independent of the agency in its work",
        "Regional offices|Checks on the spot|Agreement of 2007|Nine offices share the work on 5 % of all claims"], look)
    d.add(CLOSING)


@trap(font="Carlito", size=10)
def wrapped_cells_at_the_top(d, v):
    wrapped_rows(d, Look(align="llll", upright="top", between=True, bold=(0,), padding=0.12))


@trap(font="Carlito", size=10)
def wrapped_cells_in_the_middle(d, v):
    wrapped_rows(d, Look(align="llll", upright="middle", between=True, bold=(0,), padding=0.12))


@trap(font="Carlito", size=10)
def wrapped_cells_at_the_bottom(d, v):
    wrapped_rows(d, Look(align="llll", upright="bottom", between=True, bold=(0,), padding=0.12))


@trap(font="Carlito", size=10)
def wrapped_cells_in_the_middle_without_rules(d, v):
    wrapped_rows(d, Look(align="llll", upright="middle", bold=(0,), padding=0.15, padding_above=0.2))


@trap(font="Carlito", size=10)
def wrapped_cells_in_the_middle_centred_in_a_grid(d, v):
    wrapped_rows(d, Look(align="cccc", upright="middle", grid=True, bold=(0,), padding=0.12))


@trap(font="Liberation Sans", size=8)
def marks_on_many_numbers(d, v):
    d.add(RUNNING)
    d.table([4, 2, 2, 2, 2, 2], [
        "Country^{1}|2005|2006|2007^{2}|2008|2009",
        *(f"{country}|{v.row(1, 1, 99, '{:.1f}^{{(b)}}')}|{v.row(1, 1, 99, ONE)}|{v.row(1, 1, 99, '{:.1f}^{{(p)}}')}|"
          f"{v.row(1, 1, 99, ONE)}|{v.row(1, 1, 99, '{:.1f}^{{(e)}}')}" for country in COUNTRIES[:8])],
        Look(rules=BOOKED))
    d.add("^{1} Excluding overseas territories.", size=7, after=0)
    d.add("^{2} Revised.", size=7)
    d.add(CLOSING)


@trap(font="Liberation Serif", size=9)
def estimates_with_errors_below_them(d, v):
    d.add("Table 6. Determinants of enrolment", bold=True, align="center")
    d.table([4, 2.6, 2.6, 2.6, 2.6], [
        "|(1)|(2)|(3)|(4)", "|OLS|IV|OLS|IV",
        *sum(([f"{name}|{v.row(4, 0, 1, '{:.3f}')}***", f"|{v.row(4, 0, 1, '({:.3f})')}"]
              for name in ("Distance to school", "Income per head", "Mother's schooling")), []),
        "Region effects|No|No|Yes|Yes", "Observations|2,410|2,410|2,398|2,398"],
        Look(head=2, align="lcccc", head_align="lcccc", rules=((0, ABOVE), (1, BELOW), (-2, ABOVE), (-1, BELOW))))
    d.add("Robust standard errors in brackets. *** p < 0.01.", size=7)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def ticks_and_crosses(d, v):
    d.add(RUNNING)
    d.table([5, 2, 2, 2, 2], [
        "Measure|Spain|Italy|Malta|Greece",
        "Residence permit|X|X||X", "Work permit||X|X|", "Health care|X|X|X|X", "Housing support|X|||", "Language course||X||X"],
        Look(align="lcccc", head_align="lcccc", rules=BOOKED))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def texts_of_one_word_without_rules(d, v):
    d.add(RUNNING)
    d.table([4, 3, 3, 3], [
        "Chemical|Class|Use|Status", "Atrazine|Triazine|Herbicide|Banned", "Captan|Imide|Fungicide|Listed",
        "Diazinon|Phosphate|Insecticide|Banned",
        "Glyphosate|Glycine|Herbicide|Listed", "Mancozeb|Carbamate|Fungicide|Pending", "Permethrin|Pyrethroid|Insecticide|Banned"],
        Look(align="llll", bold=(0,)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def ranges_and_dates(d, v):
    d.add(RUNNING)
    d.table([4, 3, 3, 3, 2.5], [
        "Season|First catch|Last catch|Length (cm)|Quota (t)", "Herring|1 March 2009|31 May 2009|18–27|1,200",
        "Cod|15 January 2009|30 April 2009|40–110|850",
        "Sprat|1 October 2009|31 December 2009|9–14|4,300", "Plaice|all year|all year|27–60|< 100"],
        Look(align="llllr", bold=(0,), rules=((0, BELOW),)))
    d.add(CLOSING)
