// campaign_tables
