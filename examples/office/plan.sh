#!/usr/bin/env bash
# Plans a sample office from the tables in this folder: three floors at a scale of 1:100 with their rooms, ports, cables
# and the ways of the cables, two sheets with network devices, and test results. Makes office.bkt and office.job in the
# present folder. The program "cabledoc" must be in the path.
set -euo pipefail
tables=$(cd "$(dirname "$0")" && pwd)

# What all jobs of this contractor share
cabledoc new office.bkt --overwrite
cabledoc set office.bkt contractor.company="Sample Cabling Ltd" contractor.tester="A. Tester" \
    contractor.address.city=Sampletown scale.floor-plan=1:100 page.floor-plan=A2 print.floor-plan.paper_size=A3 \
    print.network-view.paper_size=A4
cabledoc table import office.bkt test-definitions "$tables/test-definitions.csv"
cabledoc table import office.bkt bundles "$tables/bundles.csv"

# The building
cabledoc new office.job --overwrite --floor Floor_1 --floor Floor_2 --floor Floor_3
cabledoc import office.job --template office.bkt
cabledoc set office.job site.company="Sample Office" site.contact="R. Reception" site.address.city=Sampletown \
    notes="Cables run on trays above the corridors. Risers are in the telecom rooms."
for table in floors rooms ports vertical-runs points floor-texts; do
    cabledoc table import office.job "$table" "$tables/$table.csv"
done

# The cables, and then the ways that they take
cabledoc schedule import office.job "$tables/office.csv"
cabledoc table import office.job cables "$tables/paths.csv"

# The network
for table in sheets devices bends sheet-texts connections active-ports; do
    cabledoc table import office.job "$table" "$tables/$table.csv"
done

# The test results. Two of the testers have other headings, units and languages, so each has a mapping.
results=$tables/results
cabledoc results import office.job "$results/cables.csv"
for tester in german-tester feet-tester; do
    cabledoc results import office.job "$results/$tester.csv" --map "$results/$tester.ini"
done
cabledoc results import office.job "$results/active-ports.csv"
