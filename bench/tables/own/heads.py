"""Tables whose heads are hard: of several levels, with rules below some of their cells, with units, turned, repeated."""
from odf import ABOVE, BELOW, Look
from traps import CLOSING, COUNTRIES, RUNNING, trap

ONE = "{:.1f}"
BOOKED = ((0, ABOVE), (-1, BELOW))


@trap(font="Liberation Sans", size=8)
def head_of_two_levels_with_partial_rules(d, v):
    d.add(RUNNING)
    d.add("Table 1. Live births, by age of mother and legal status: 1990 to 2008", bold=True)
    d.table([3.6] + [1.6] * 7, [
        "|All births|Age of mother|<|<|<|Status|<",
        "Year||Under 20|20–29|30–39|40 and over|Married|Unmarried",
        *(f"{year}|{v.row(7, 100, 4000)}" for year in (1990, 1995, 2000, 2005, 2006, 2007, 2008))],
        Look(head=2, rules=(*BOOKED, (1, BELOW)), span_rules=(0,)))
    d.add("Source: National Center for Vital Records, annual reports.", size=7)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=7)
def head_of_three_levels_without_rules(d, v):
    d.add("Table 2 – Enrolment by level, sector and sex", bold=True, size=9)
    d.table([3.2] + [1.6] * 8, [
        "|2007/08|<|<|<|2008/09|<|<|<",
        "|Public|<|Private|<|Public|<|Private|<",
        "|Male|Female|Male|Female|Male|Female|Male|Female",
        *(f"{level}|{v.row(8, 100, 9000)}"
          for level in ("Pre-primary", "Primary", "Lower secondary", "Upper secondary", "Post-secondary", "Total"))],
        Look(head=3))
    d.add(RUNNING, size=9)


@trap(size=9)
def head_texts_of_unequal_height(d, v):
    d.add(RUNNING)
    d.table([4.2, 2, 2.3, 2.3, 2, 2.3], [
        "Agency|Budget|Full-time equivalent positions|Share of positions that were vacant at year's end|Grants|Average cost of one case",
        *(f"{name}|{v.number(10, 900)}|{v.number(100, 9000)}|{v.number(1, 20, ONE)}|{v.number(0, 99)}|{v.number(100, 4000)}"
          for name in ("Customs", "Fisheries", "Forests", "Labour inspection", "Roads"))],
        Look(head_align="lccccc", rules=(*BOOKED, (0, BELOW))))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def head_texts_at_the_top_without_rules(d, v):
    d.add(RUNNING)
    d.table([4.2, 2, 2.6, 2.6, 2, 2.3], [
        "Agency|Budget|Full-time equivalent positions|Share of positions that were vacant at year's end|Grants|Average cost of one case",
        *(f"{name}|{v.number(10, 900)}|{v.number(100, 9000)}|{v.number(1, 20, ONE)}|{v.number(0, 99)}|{v.number(100, 4000)}"
          for name in ("Customs", "Fisheries", "Forests", "Labour inspection", "Roads", "Statistics"))],
        Look(head_align="llllll", align="llllll", upright="top", bold=(0,)))
    d.add(CLOSING)


@trap(font="Caladea", size=9)
def units_below_the_head(d, v):
    d.add(RUNNING)
    d.table([4, 2.4, 2.4, 2.4, 2.4], [
        "|Production|<|Consumption|<",
        "|2008|2009|2008|2009",
        "|(1 000 t)|(1 000 t)|(kg/head)|(kg/head)",
        *(f"{product}|{v.blank_thousands(2, 800, 40000)}|{v.row(2, 1, 90, ONE)}"
          for product in ("Beef", "Pork", "Poultry", "Sheep and goat", "Milk", "Eggs"))],
        Look(head=3, rules=(*BOOKED, (2, BELOW)), span_rules=(0,), italic=(2,)))
    d.add("(1) Including offal. (2) Estimate.", size=7)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def unit_of_all_over_the_years(d, v):
    d.add("Table 5: Gross inland consumption, by fuel", bold=True)
    d.table([4, 1.8, 1.8, 1.8, 1.8, 1.8], [
        "|1995|2000|2005|2008|2009",
        "|Mtoe|<|<|<|<",
        *v.rows(("Solid fuels", "Oil", "Natural gas", "Nuclear", "Renewables"), 5, 10, 700, ONE),
        "|Share of total (%)|<|<|<|<",
        *v.rows(("Solid fuels", "Oil", "Natural gas", "Nuclear", "Renewables"), 5, 1, 60, ONE)],
        Look(head=1, rules=(*BOOKED, (0, BELOW)), bold=(0,), italic=(1, 7)))
    d.add(RUNNING)


@trap(font="Liberation Sans", size=8, landscape=True)
def wide_table_of_two_heads_on_a_landscape_page(d, v):
    d.add("Table 12. Budgetary resources by bureau and account [millions of dollars]", bold=True, size=10)
    d.table([5] + [2] * 9, [
        "Bureau|2010 actual|<|<|2011 estimate|<|<|2012 proposed|<|<",
        "^|Authority|Obligations|Outlays|Authority|Obligations|Outlays|Authority|Obligations|Outlays",
        *(f"{name}|{v.row(9, 10, 9000)}"
          for name in (
              "Office of the Secretary", "Conservation service", "Farm agency", "Food safety", "Forest service", "Rural housing",
              "Rural utilities")),
        f"Total|{v.row(9, 10000, 60000)}"],
        Look(head=2, rules=(*BOOKED, (1, BELOW), (-1, ABOVE)), span_rules=(0,)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def head_on_a_dark_ground_with_numbered_columns(d, v):
    d.add(RUNNING)
    d.table([4, 2.2, 2.2, 2.2, 2.2, 2.2], [
        "Objective|Commitments|Payments|Outstanding|Rate|Rank",
        "(1)|(2)|(3)|(4) = (2)–(3)|(5)|(6)",
        *(f"{name}|{v.row(3, 100, 9000)}|{v.number(10, 99, ONE)} %|{rank}"
          for rank, name in enumerate(("Convergence", "Competitiveness", "Cooperation", "Fisheries fund", "Solidarity"), 1))],
        Look(head=2, head_align="cccccc", fill={0: "#1f4e79", 1: "#d9e2f3", 3: "#f2f2f2", 5: "#f2f2f2"}, bold=(0,)))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def table_over_two_pages_with_its_head_again(d, v):
    d.add("Annex II", bold=True, size=12)
    for _ in range(6):
        d.add(RUNNING)
    d.add("Table 9. Municipal waste by country", bold=True)
    d.table([5, 2.5, 2.5, 2.5, 2.5], [
        "|Generated|<|Treated|<",
        "Country|2008|2009|2008|2009",
        *v.rows(COUNTRIES, 4, 100, 900)],
        Look(head=2, rules=(*BOOKED, (1, BELOW)), span_rules=(0,), padding_above=0.12))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def turned_heads_in_a_grid(d, v):
    d.add(RUNNING)
    d.table([4] + [1.2] * 8, [
        "Directive|Austria|Belgium|Cyprus|Denmark|Estonia|Finland|Greece|Hungary",
        *v.rows(("Waste", "Drinking water", "Air quality", "Nature", "Noise"), 8, 0, 9)],
        Look(grid=True, turned_head=True, align="lcccccccc"))
    d.add(CLOSING)


@trap(font="Carlito", size=9)
def title_row_over_all_columns_in_a_grid(d, v):
    d.add(RUNNING)
    d.table([5, 2.5, 2.5, 2.5, 2.5], [
        "Table A-3. Workplace inspections, fiscal years|<|<|<|<",
        "Type|2007|<|2008|<",
        "^|Number|Percent|Number|Percent",
        *(f"{name}|{v.number(100, 40000)}|{v.number(1, 99, ONE)}|{v.number(100, 40000)}|{v.number(1, 99, ONE)}"
          for name in ("Programmed", "Complaint", "Referral", "Accident", "Follow-up"))],
        Look(head=3, grid=True, bold=(0,), fill={0: "#d9d9d9"}))
    d.add(CLOSING)


@trap(size=10)
def spanning_heads_over_left_texts_without_rules(d, v):
    d.add(RUNNING)
    d.table([3.2, 3.4, 3.4, 3.4, 3.4], [
        "|Present rules|<|Proposed rules|<",
        "Item|Limit|Exception|Limit|Exception",
        "Tobacco|200 cigarettes|Under 17|400 cigarettes|Under 18",
        "Wine|4 litres|None|6 litres|Under 18",
        "Spirits|1 litre|Air crews|1 litre|None",
        "Perfume|50 grams|None|No limit|None",
        "Other goods|430 euro|Land travel|500 euro|Land travel"],
        Look(head=2, align="lllll", bold=(0,), italic=(1,)))
    d.add(CLOSING)
