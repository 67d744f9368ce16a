"""Tables whose row labels are hard: indented, wrapped, in groups, with leaders, numbered, or after the numbers."""
from odf import ABOVE, BELOW, Look
from traps import CLOSING, COUNTRIES, RUNNING, trap

STATES = ("Alabama", "Alaska", "Arizona", "Arkansas", "California", "Colorado", "Connecticut", "Delaware", "Florida", "Georgia", "Hawaii",
          "Idaho", "Illinois", "Indiana", "Iowa")
ONE = "{:.1f}"
BOOKED = ((0, ABOVE), (0, BELOW), (-1, BELOW))


@trap(font="Liberation Sans", size=8)
def labels_indented_in_three_steps_and_wrapped(d, v):
    d.add("Table 3. Receipts by source", bold=True)
    d.table([5, 2.1, 2.1, 2.1, 2.1], [
        "Source|2006|2007|2008|2009",
        f"Individual income taxes|{v.row(4, 10, 9000)}",
        "Social insurance and retirement receipts:||||",
        *(f"   {name}|{v.row(4, 10, 9000)}" for name in (
            "Employment and general retirement", "Old-age and survivors insurance trust fund contributions (off-budget)")),
        f"      Disability insurance|{v.row(4, 10, 900)}",
        f"      Hospital insurance, including the tax on net earnings from self-employment|{v.row(4, 10, 900)}",
        f"   Unemployment insurance|{v.row(4, 10, 900)}",
        f"Excise taxes|{v.row(4, 10, 900)}",
        f"Total receipts|{v.row(4, 1000, 9000)}"],
        Look(rules=(*BOOKED, (-1, ABOVE)), bold=(-1,)))
    d.add("Note: Off-budget receipts are shown with the others.", size=7)
    d.add(RUNNING)


@trap(font="Carlito", size=9)
def labels_indented_without_rules(d, v):
    d.add(RUNNING)
    d.table([6, 2.2, 2.2, 2.2], [
        "Occupation|Employed|Mean wage|Change",
        f"Management occupations|{v.row(3, 10, 900)}",
        f"   Chief executives|{v.row(3, 10, 900)}",
        f"   Natural sciences managers|{v.row(3, 10, 900)}",
        f"Legal occupations|{v.row(3, 10, 900)}",
        f"   Lawyers|{v.row(3, 10, 900)}",
        f"   Paralegals and legal assistants|{v.row(3, 10, 900)}",
        f"   Court reporters|{v.row(3, 10, 900)}",
        f"All occupations|{v.row(3, 10, 900)}"],
        Look())
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def blank_rows_part_groups(d, v):
    d.add(RUNNING)
    d.table([4, 2, 2, 2, 2, 2], [
        "Characteristic|Total|White|Black|Asian|Hispanic",
        *sum(([f"{group}|||||", *(f"  {name}|{v.row(5, 1, 99, ONE)}" for name in names), "|||||"] for group, names in (
            ("Sex", ("Male", "Female")), ("Age", ("18 to 24 years", "25 to 44 years", "45 to 64 years", "65 years and over")),
            ("Region", ("Northeast", "Midwest", "South", "West")))), [])[:-1]],
        Look(rules=BOOKED, bold=(0,)))
    d.add("* Statistically different from the year before at the 90-percent level.", size=7)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def every_fifth_row_apart_without_rules(d, v):
    d.add(RUNNING)
    rows = []
    for number, state in enumerate(STATES):
        rows += ["|||||"] if number and number % 5 == 0 else []
        rows.append(f"{state}|{v.row(5, 10, 9000)}")
    d.table([4, 2, 2, 2, 2, 2], ["State|Total|Public|Private|Charter|Magnet", *rows], Look(bold=(0,), padding=0.02))
    d.add(CLOSING)


@trap(size=9)
def leaders_in_rows_that_wrap(d, v):
    d.add("Schedule B—Statement of net cost", bold=True)
    d.table([8, 2.4, 2.4], [
        "|2009|2008",
        "Program costs:||",
        *(f"  {name}|{v.row(2, 10, 9000)}" for name in (
            "Strengthening the nation's core scientific capacity through research grants and cooperative agreements with universities",
            "Facilities", "Stewardship of lands held in trust", "Education and outreach")),
        f"Total costs|{v.row(2, 10000, 20000)}",
        f"Less earned revenue|({v.number(10, 90)})|({v.number(10, 90)})",
        f"Net cost of operations|{v.row(2, 9000, 9900)}"],
        Look(leaders=True, rules=((-1, ABOVE), (-1, BELOW))))
    d.add(RUNNING)


@trap(font="Liberation Sans", size=8)
def labels_of_groups_that_span_rows(d, v):
    d.add(RUNNING)
    d.table([3, 4, 2.2, 2.2, 2.2], [
        "Area|Measure|2007|2008|2009",
        f"Urban|Deaths|{v.row(3, 10, 900)}", f"^|Serious injuries|{v.row(3, 10, 900)}", f"^|Slight injuries|{v.row(3, 10, 900)}",
        f"Rural|Deaths|{v.row(3, 10, 900)}", f"^|Serious injuries|{v.row(3, 10, 900)}", f"^|Slight injuries|{v.row(3, 10, 900)}",
        f"Motorway|Deaths|{v.row(3, 10, 900)}", f"^|Serious injuries|{v.row(3, 10, 900)}", f"^|Slight injuries|{v.row(3, 10, 900)}"],
        Look(align="llrrr", rules=(*BOOKED, (3, BELOW), (6, BELOW))))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=8)
def labels_at_both_sides(d, v):
    d.add("Tableau 4 / Table 4", bold=True)
    d.table([4.2, 1.8, 1.8, 1.8, 1.8, 4.2], [
        "Branche|2006|2007|2008|2009|Industry",
        *(f"{french}|{v.row(4, 10, 900, ONE)}|{english}" for french, english in (
            ("Agriculture", "Agriculture"), ("Industrie", "Manufacturing"), ("Construction", "Construction"),
            ("Commerce et transports", "Trade and transport"), ("Services financiers", "Financial services"),
            ("Autres services", "Other services")))],
        Look(align="lrrrrl", rules=BOOKED))
    d.add(CLOSING)


@trap(font="Liberation Sans", size=9)
def numbered_rows_with_long_labels(d, v):
    d.add(RUNNING)
    d.table([1, 7, 2.5, 2.5], [
        "No.|Recommendation|Due|Status",
        "1|Define roles of the coordinating committee and of the working groups in writing|March 2010|Open",
        "2|Publish minutes|June 2010|Closed",
        "3|Set up a register of contracts above the threshold and keep it up to date each quarter|June 2010|Open",
        "4|Train evaluators|December 2010|Closed",
        "5|Review the method by which indirect costs are charged to projects|January 2011|In part"],
        Look(align="llll", rules=((0, ABOVE), (0, BELOW), (-1, BELOW)), padding_above=0.06))
    d.add(CLOSING)


@trap(size=9)
def years_as_labels_with_marks(d, v):
    d.add(RUNNING)
    d.table([2.6, 2.2, 2.2, 2.2, 2.2], [
        "Year|Exports|Imports|Balance|Cover^{1}",
        *(f"{year}|{v.row(2, 100, 900, ONE)}|–{v.number(1, 90, ONE)}|{v.number(60, 99, ONE)}"
          for year in ("2003", "2004", "2005^{b}", "2006", "2007", "2008^{p}", "2009^{p}"))],
        Look(rules=BOOKED))
    d.add("^{1} Exports as a percentage of imports. ^{b} Break in series. ^{p} Provisional.", size=7)
    d.add(CLOSING)


@trap(font="Liberation Sans", size=7)
def group_titles_in_the_middle_of_the_table(d, v):
    d.add("Table 7. Arrests, by type of drug violation", bold=True, size=9)
    d.table([4, 1.8, 1.8, 1.8, 1.8, 1.8], [
        "Offence|Total|Heroin|Cocaine|Cannabis|Other",
        "NORTHEAST|||||",
        f"Sale|{v.row(5, 1, 99, ONE)}", f"Possession|{v.row(5, 1, 99, ONE)}",
        "MIDWEST|||||",
        f"Sale|{v.row(5, 1, 99, ONE)}", f"Possession|{v.row(5, 1, 99, ONE)}",
        "SOUTH|||||",
        f"Sale|{v.row(5, 1, 99, ONE)}", f"Possession|{v.row(5, 1, 99, ONE)}"],
        Look(head=1, rules=((0, ABOVE), (0, BELOW), (-1, BELOW)), bold=(1, 4, 7)))
    d.add(RUNNING, size=9)


@trap(font="Liberation Sans", size=8)
def two_tables_of_one_page_close_together(d, v):
    d.add("Table 21. Air emissions", bold=True, after=0.05)
    d.table([4, 2, 2, 2], ["Gas|1990|2000|2008", *v.rows(("Carbon dioxide", "Methane", "Nitrous oxide"), 3, 10, 900, ONE)],
            Look(rules=BOOKED))
    d.add("Table 22. Water quality", bold=True, after=0.05)
    d.table([5, 1.6, 1.6, 1.6, 1.6], ["River|Good|Fair|Poor|Bad", *v.rows(("Danube", "Elbe", "Meuse", "Oder"), 4, 1, 60)],
            Look(rules=BOOKED))
    d.add("Table 23. Protected areas", bold=True, after=0.05)
    d.table([4, 3, 3], ["Country|Sites|Area (km²)", *v.rows(COUNTRIES[:5], 2, 10, 90000)], Look(rules=BOOKED))
    d.add(RUNNING)


@trap(font="Liberation Sans", size=8)
def captions_between_tables_of_one_width(d, v):
    d.add("Table 31. Deliveries by month", bold=True, after=0.05)
    d.table([4, 2, 2, 2], ["Month|2007|2008|2009", *v.rows(("January", "February", "March", "April"), 3, 10, 900, ONE)],
            Look(rules=BOOKED))
    d.add("Table 32. Deliveries by region", bold=True, after=0.05)
    d.table([4, 2, 2, 2], ["Region|2007|2008|2009", *v.rows(("North", "South", "East"), 3, 10, 900, ONE)], Look(rules=BOOKED))
    d.add("Table 33. Deliveries by size of farm", bold=True, after=0.05)
    d.table([4, 3, 3], ["Size|Farms|Tonnes", *v.rows(("Small", "Medium", "Large"), 2, 10, 90000)], Look(rules=BOOKED))
    d.add(CLOSING)
